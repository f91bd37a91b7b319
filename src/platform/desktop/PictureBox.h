#pragma once

#include <QCursor>
#include <QPixmap>
#include <QWidget>

#include <functional>

namespace fh {

// A surface that pictures are painted on. Setting its picture wipes whatever was painted over the
// old one; what is painted stays until then, as the sprites' cels do on the main view.
class PictureBox : public QWidget {
 public:
  explicit PictureBox(QWidget* parent = nullptr);

  const QPixmap& Picture() const { return m_picture; }
  void setPicture(const QPixmap& picture);
  // What the surface shows now: the picture with all that was painted on it.
  const QPixmap& Image() const { return m_image; }
  // Paints `picture` at (x, y) in plain copy mode.
  void PaintPicture(const QPixmap& picture, int x, int y);

  // A press of any button, and every move, at the pointer's place on the surface. The second press
  // of a double click is no press, and releases aren't reported at all.
  std::function<void(Qt::MouseButton button, QPointF position)> onMouseDown;
  std::function<void(QPointF position)> onMouseMove;

  int MousePointer() const { return m_mousePointer; }
  // One of the platform's standard pointers by number; 99 is the custom pointer, which, with no
  // picture given, is the default arrow, as is any number the platform doesn't know.
  void setMousePointer(int number);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QPixmap m_picture;
  QPixmap m_image;
  int m_mousePointer = 0;
};

// The platform's pointer for one of its standard pointer numbers.
Qt::CursorShape standardPointer(int number);
// The pointer for a pointer number: 99 is the custom pointer, whose picture is `icon`; without an
// icon it is the default arrow, as is any number the platform doesn't know.
QCursor mousePointer(int number, const QPixmap& icon = {});

}  // namespace fh
