#pragma once

#include <QString>
#include <QStringList>

// Pictures that the program itself loads from "Graphics\" by fixed name, whatever the world is.
namespace fh {

inline const QString kFramePicture = QStringLiteral("Menu.bmp");        // the main window's frame
inline const QString kOpeningPicture = QStringLiteral("opening.bmp");   // the opening screen
inline const QString kOpeningSlide = QStringLiteral("slide03.bmp");     // the picture on it

// The screen saver's slides, "Slide01.bmp" to "Slide11.bmp", in the order they are shown.
inline QStringList SlidePictures() {
  QStringList names;
  for (int i = 1; i <= 11; ++i) names << QStringLiteral("Slide%1.bmp").arg(i, 2, 10, QLatin1Char('0'));
  return names;
}

}  // namespace fh
