#pragma once

#include <QDialog>
#include <QPixmap>

#include <cstdint>

class QLineEdit;

namespace fh {

class PictureButton;

// Creates a player: a name and a password, both shown as typed. Enter presses OK, Escape Cancel.
class frmNewUser : public QDialog {
 public:
  explicit frmNewUser(QWidget* parent = nullptr);

  // The new player's ID once the form has hidden itself; -1 after Cancel.
  std::int32_t NewUserID = -1;

  QLineEdit* txtUserName;
  QLineEdit* txtPassword;
  PictureButton* cmdOK;
  PictureButton* cmdCancel;

  // Clears both boxes, each time the form comes up.
  void Form_Activate();
  // Adds the player and hides the form; a blank box or a taken name keeps the form up as it is.
  void cmdOK_Click();
  void cmdCancel_Click();
  // Escape is the Cancel button.
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap m_background;
};

// The one frmNewUser, created on first use.
frmNewUser& newUserForm();

}  // namespace fh
