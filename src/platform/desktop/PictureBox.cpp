#include "platform/desktop/PictureBox.h"

#include "platform/base/Guard.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace fh {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void PictureBox::setPicture(const QPixmap& picture) {
  m_picture = picture;
  m_image = picture;
  update();
}

void PictureBox::PaintPicture(const QPixmap& picture, int x, int y) {
  if (m_image.isNull()) {
    m_image = QPixmap(size());
    m_image.fill(Qt::black);
  }
  QPainter painter(&m_image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawPixmap(x, y, picture);
  painter.end();
  update(QRect(x, y, picture.width(), picture.height()));
}

void PictureBox::setMousePointer(int number) {
  m_mousePointer = number;
  setCursor(mousePointer(number));
}

void PictureBox::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::black);
  if (!m_image.isNull()) painter.drawPixmap(event->rect(), m_image, event->rect());
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
  if (!onMouseDown) return;
  guarded("mouse down", [this, button = event->button(), position = event->position()] { onMouseDown(button, position); });
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent*) {}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
  if (!onMouseMove) return;
  guarded("mouse move", [this, position = event->position()] { onMouseMove(position); });
}

Qt::CursorShape standardPointer(int number) {
  switch (number) {
    case 1: return Qt::ArrowCursor;
    case 2: return Qt::CrossCursor;
    case 3: return Qt::IBeamCursor;
    case 4: return Qt::PointingHandCursor;  // the platform's "icon": a small marker over what is pointed at
    case 5: return Qt::SizeAllCursor;
    case 6: return Qt::SizeBDiagCursor;
    case 7: return Qt::SizeVerCursor;
    case 8: return Qt::SizeFDiagCursor;
    case 9: return Qt::SizeHorCursor;
    case 10: return Qt::UpArrowCursor;
    case 11: return Qt::WaitCursor;
    case 12: return Qt::ForbiddenCursor;
    case 13: return Qt::BusyCursor;
    case 14: return Qt::WhatsThisCursor;
    case 15: return Qt::SizeAllCursor;
    default: return Qt::ArrowCursor;  // 0, 99 and the numbers the platform has no pointer for
  }
}

QCursor mousePointer(int number, const QPixmap& icon) {
  if (number == 99 && !icon.isNull()) return QCursor(icon);
  return standardPointer(number);
}

}  // namespace fh
