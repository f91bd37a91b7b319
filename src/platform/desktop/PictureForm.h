#pragma once

#include <QPixmap>
#include <QWidget>

namespace fh {

// A small window of the game's own that lies over the main view: frameless, the size of its fixed
// background picture, which it paints under its controls. It has no close box; it closes only
// through its own buttons, which hide it.
class PictureForm : public QWidget {
 public:
  PictureForm(const QString& name, const QString& title, const QString& background);

  // The picture whose colours the form takes on a display of 256 colours. Qt draws in true colour,
  // so it is only kept.
  QPixmap Palette;

  // Places the form centred over `area`, a rectangle on the screen, and then `shift` pixels further
  // left and up. Without a window manager nobody else places it.
  void centreOver(const QRect& area, int shift = 0);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QPixmap m_background;
};

}  // namespace fh
