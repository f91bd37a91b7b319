#include "platform/desktop/ImagePair.h"

#include "platform/base/Guard.h"
#include "platform/base/Ui.h"

#include <QMouseEvent>
#include <QPainter>

namespace fh {

ImagePair::ImagePair(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  hide();
}

void ImagePair::setPictures(const QPixmap& up, const QPixmap& down) {
  m_up = up;
  m_down = down;
  resize(up.size());
  update();
}

void ImagePair::setUpVisible(bool visible) {
  m_upVisible = visible;
  showState();
}

void ImagePair::setDownVisible(bool visible) {
  m_downVisible = visible;
  showState();
}

void ImagePair::showState() {
  setVisible(m_upVisible || m_downVisible);
  update();
}

void ImagePair::mouseDown() {
  // Down first: for a moment both are hidden otherwise, and a hidden widget loses the mouse, so the
  // release would never arrive.
  setDownVisible(true);
  setUpVisible(false);
  DoEvents();
}

void ImagePair::mouseUp() {
  setUpVisible(true);
  setDownVisible(false);
  DoEvents();
  if (onAction) onAction();
}

void ImagePair::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (m_downVisible) painter.drawPixmap(0, 0, m_down);
  else if (m_upVisible) painter.drawPixmap(0, 0, m_up);
}

// Any mouse button presses the button, and each release acts, whichever button it was.
void ImagePair::mousePressEvent(QMouseEvent*) {
  ++m_buttonsHeld;
  guarded("button press", [this] { mouseDown(); });
}

void ImagePair::mouseReleaseEvent(QMouseEvent*) {
  if (m_buttonsHeld == 0) return;
  --m_buttonsHeld;
  guarded("button release", [this] { mouseUp(); });
}

}  // namespace fh
