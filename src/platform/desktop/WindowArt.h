#pragma once

#include <QList>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace fh {

// A picture that belongs to one of the program's windows (a button, a form's background, the meter
// strip), compiled into the program rather than read from the resource tree.
struct WindowPicture {
  const char* name;
  QSize size;
};

// Every window picture, with the size its window places it at. Buttons come in pairs, NameUp and
// NameDown.
const QList<WindowPicture>& WindowPictures();

// The picture by its name in WindowPictures(). A name that isn't there, or a program built without
// its pictures, is a run-time failure.
QPixmap WindowPixmap(const QString& name);

// The 640 x 480 picture of the game's 256 colours, which the windows hold as their palette.
inline const QString kPalettePicture = QStringLiteral("Palette");

}  // namespace fh
