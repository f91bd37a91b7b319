#include "platform/desktop/PictureForm.h"

#include "platform/desktop/WindowArt.h"

#include <QCloseEvent>
#include <QPainter>

#include <cmath>

namespace fh {

PictureForm::PictureForm(const QString& name, const QString& title, const QString& background)
    : QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint), m_background(WindowPixmap(background)) {
  setObjectName(name);
  setWindowTitle(title);
  setFixedSize(m_background.size());
}

void PictureForm::centreOver(const QRect& area, int shift) {
  const auto edge = [shift](int start, int length, int own) {
    return static_cast<int>(std::lround(length / 2.0 - own / 2.0 + start)) - shift;
  };
  move(edge(area.left(), area.width(), width()), edge(area.top(), area.height(), height()));
}

void PictureForm::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_background);
}

// A window manager's close would leave the form without the step its buttons take on the way out.
void PictureForm::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace fh
