#pragma once

#include <QPixmap>
#include <QWidget>

#include <functional>

namespace fh {

// The game's own push button: two pictures at one place, index 0 the button up and index 1 the
// button down. A press shows the down picture and lets the window repaint; the release shows the up
// picture, lets it repaint again, and then does the action, wherever the pointer has gone meanwhile.
// Any mouse button works it. A disabled pair takes no mouse events.
class ImagePair : public QWidget {
 public:
  ImagePair(const QString& name, QWidget* parent);

  void setPictures(const QPixmap& up, const QPixmap& down);
  // Index 0 and index 1 shown or hidden, each on its own; with both shown, index 1 lies on top.
  bool upVisible() const { return m_upVisible; }
  bool downVisible() const { return m_downVisible; }
  void setUpVisible(bool visible);
  void setDownVisible(bool visible);

  // The two halves of a click, for callers that press the button themselves (Enter in a box).
  void mouseDown();
  void mouseUp();

  std::function<void()> onAction;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void showState();

  QPixmap m_up;
  QPixmap m_down;
  bool m_upVisible = false;
  bool m_downVisible = false;
  int m_buttonsHeld = 0;  // pressed on this pair and not yet released
};

}  // namespace fh
