#include "platform/desktop/PictureButton.h"

#include "platform/desktop/WindowArt.h"

#include <QPainter>

namespace fh {

PictureButton::PictureButton(const QString& name, const QString& toolTip, QWidget* parent) : QPushButton(parent) {
  setObjectName(name);
  setToolTip(toolTip);
  setFocusPolicy(Qt::TabFocus);
}

void PictureButton::setPictures(const QPixmap& normal, const QPixmap& pressed) {
  m_normal = normal;
  m_pressed = pressed;
  resize(normal.size());
  update();
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, isDown() ? m_pressed : m_normal);
}

PictureButton* WindowArtButton(QWidget* form, const QString& name, const QString& toolTip, const QString& pictures, QPoint place) {
  auto* button = new PictureButton(name, toolTip, form);
  button->setPictures(WindowPixmap(pictures + QStringLiteral("Up")), WindowPixmap(pictures + QStringLiteral("Down")));
  button->move(place);
  return button;
}

}  // namespace fh
