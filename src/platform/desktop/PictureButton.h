#pragma once

#include <QPixmap>
#include <QPushButton>

namespace fh {

// A command button drawn as a picture, with a second picture while it is pressed. It clicks as any
// push button does: on a release over it, or by the keyboard.
class PictureButton : public QPushButton {
 public:
  PictureButton(const QString& name, const QString& toolTip, QWidget* parent);

  void setPictures(const QPixmap& normal, const QPixmap& pressed);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap m_normal;
  QPixmap m_pressed;
};

// A picture button of the windows' own art (`pictures` + "Up" and + "Down"), at `place` in its form.
PictureButton* WindowArtButton(QWidget* form, const QString& name, const QString& toolTip, const QString& pictures, QPoint place);

}  // namespace fh
