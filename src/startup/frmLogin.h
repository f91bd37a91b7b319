#pragma once

#include <QDialog>
#include <QPixmap>

#include <cstdint>

class QLabel;
class QLineEdit;
class QListWidget;

namespace fh {

class ImagePair;

// The player chooses their name and gives their password, or makes a new account; the teacher
// removes accounts with the master password. Passwords are compared without regard to case and
// shown as typed: they keep honest students out of each other's games, no more.
class frmLogin : public QDialog {
 public:
  explicit frmLogin(QWidget* parent = nullptr);

  // The chosen player's ID once the form has hidden itself; -1 after Cancel.
  std::int32_t SelectedUserID = -1;

  QLabel* Label1;
  QListWidget* UserList;
  QLineEdit* txtPassword;
  ImagePair* btnNewUser;
  ImagePair* btnRemove;
  ImagePair* btnCancel;
  ImagePair* btnOK;

  // Refills the list with no name chosen, which closes the password box, OK and Remove again.
  void Form_Activate();
  // Opens or closes the password box, OK and Remove as a name is chosen or not.
  void UserList_Click();
  // Checks the password of the chosen name; the actions below run after the button has come up.
  void btnOK_MouseUp();
  void btnCancel_MouseUp();
  void btnNewUser_MouseUp();
  void btnRemove_MouseUp();
  // Enter in the password box presses and releases OK. True when the key was taken.
  bool txtPassword_KeyPress(int keyAscii);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  // Escape does nothing here: only the Cancel button cancels.
  void reject() override {}

 private:
  void finishLogin();

  QPixmap m_background;
};

// The one frmLogin, created on first use.
frmLogin& loginForm();

}  // namespace fh
