#pragma once

#include "SvgSource.h"

#include <QImage>
#include <QString>
#include <QStringList>

namespace fh::fhart {

// One picture drawn from its SVG source: opaque, exactly the source's size.
struct RenderedPicture {
  QString name;       // the SVG's file name
  QImage image;       // Format_RGB32, on white
  QStringList notes;  // what was not drawn as written: the source's own notes, then Qt's messages
};

// Reads, checks and draws an SVG file, antialiased, onto white. Throws ArtProblem when it can't.
RenderedPicture renderSvg(const QString& file);

}  // namespace fh::fhart
