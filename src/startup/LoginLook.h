#pragma once

#include <QColor>
#include <QScreen>
#include <QWidget>

// What the login form and the new-player form share in their look.
namespace fh {

// The light grey of the list and the text boxes.
inline const QColor kBoxGrey(224, 224, 224);

inline void paintBoxGrey(QWidget& box) {
  QPalette palette = box.palette();
  palette.setColor(QPalette::Base, kBoxGrey);
  box.setPalette(palette);
}

// The forms have no frame for a window manager to place, so they place themselves.
inline void centreOnScreen(QWidget& form) {
  if (const QScreen* screen = form.screen()) form.move(screen->geometry().center() - form.rect().center());
}

}  // namespace fh
