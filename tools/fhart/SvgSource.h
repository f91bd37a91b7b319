#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

namespace fh::fhart {

// Something about a picture's source that keeps it from being drawn at all; the text names the file.
struct ArtProblem {
  QString text;
};

// An SVG file as the renderer will read it.
struct SvgSource {
  QString name;        // the file name, as messages show it ("Kitchen.svg")
  QSize size;          // the picture's pixels: the root element's width and height
  QByteArray content;  // the file's text, made ready for Qt Svg (see withOneFontFamily)
  QStringList notes;   // what the renderer will not draw as written, one sentence each, with the line
};

// Reads and checks an SVG file. Throws ArtProblem when it is no well-formed SVG or lacks a whole
// width and height in pixels.
SvgSource readSvgSource(const QString& file);

// Qt Svg takes a font-family value as one font name, so a list ("Liberation Sans, Arial, sans-serif")
// names no font and falls back to the system's default face. Each list is cut to its first family
// that is installed (or to a generic name). Line breaks stay where they were, so that Qt's messages
// still point at the right line.
QByteArray withOneFontFamily(const QByteArray& content);

}  // namespace fh::fhart
