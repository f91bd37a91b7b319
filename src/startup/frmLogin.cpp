#include "startup/frmLogin.h"

#include "game/GameState.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/ImagePair.h"
#include "platform/desktop/WindowArt.h"
#include "startup/LoginLook.h"
#include "startup/Splash.h"
#include "startup/Users.h"
#include "startup/frmNewUser.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>

namespace fh {

namespace {

constexpr int kEnterKey = 13;

ImagePair* imagePair(QWidget* parent, const QString& name, const QString& pictures, QPoint place) {
  auto* pair = new ImagePair(name, parent);
  pair->setPictures(WindowPixmap(pictures + QStringLiteral("Up")), WindowPixmap(pictures + QStringLiteral("Down")));
  pair->move(place);
  pair->setUpVisible(true);
  return pair;
}

}  // namespace

frmLogin::frmLogin(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmLogin"));
  setWindowTitle(QStringLiteral("Login"));
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  setFixedSize(twipsToPixels(4800), twipsToPixels(7050));
  m_background = WindowPixmap(QStringLiteral("LoginBack"));

  Label1 = new QLabel(QStringLiteral("Welcome to the Fernhollow game.  Please start the game as a \"new\" user, or re-enter the game "
                                     "by clicking on your name below and entering your password.  When you're ready just click "
                                     "on \"Lets GO!\" and have fun!"),
                      this);
  Label1->setObjectName(QStringLiteral("Label1"));
  Label1->setGeometry(twipsRect(240, 300, 4335, 1335));
  Label1->setFont(ArialFont(9));
  Label1->setWordWrap(true);
  Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  UserList = new QListWidget(this);
  UserList->setObjectName(QStringLiteral("UserList"));
  UserList->setGeometry(twipsRect(315, 2145, 2910, 3810));
  UserList->setSelectionMode(QAbstractItemView::SingleSelection);
  paintBoxGrey(*UserList);

  txtPassword = new QLineEdit(this);
  txtPassword->setObjectName(QStringLiteral("txtPassword"));
  txtPassword->setGeometry(twipsRect(330, 6510, 2310, 360));
  txtPassword->setEnabled(false);
  paintBoxGrey(*txtPassword);
  txtPassword->installEventFilter(this);

  btnNewUser = imagePair(this, QStringLiteral("btnNewUser"), QStringLiteral("LoginNewUser"), twipsRect(3420, 2055, 1275, 1170).topLeft());
  btnRemove = imagePair(this, QStringLiteral("btnRemove"), QStringLiteral("LoginRemove"), twipsRect(3420, 3735, 1275, 975).topLeft());
  btnCancel = imagePair(this, QStringLiteral("btnCancel"), QStringLiteral("LoginCancel"), twipsRect(3420, 4740, 1275, 720).topLeft());
  btnOK = imagePair(this, QStringLiteral("btnOK"), QStringLiteral("LoginOK"), twipsRect(3420, 5835, 1275, 1170).topLeft());
  btnOK->setEnabled(false);
  btnRemove->setEnabled(false);

  btnNewUser->onAction = [this] { btnNewUser_MouseUp(); };
  btnRemove->onAction = [this] { btnRemove_MouseUp(); };
  btnCancel->onAction = [this] { btnCancel_MouseUp(); };
  btnOK->onAction = [this] { btnOK_MouseUp(); };
  connect(UserList, &QListWidget::itemSelectionChanged, this, [this] { guarded("login list", [this] { UserList_Click(); }); });
}

void frmLogin::Form_Activate() {
  UserList->clear();
  txtPassword->clear();

  Recordset users = RequireGameDB().OpenRecordset(QStringLiteral("Users"));
  for (; !users.IsEOF(); users.MoveNext()) UserList->addItem(users.Field(QStringLiteral("User Name")).toText());
  users.Close();

  UserList->setCurrentRow(-1);
  UserList->clearSelection();
  txtPassword->setEnabled(false);
  btnOK->setEnabled(false);
  btnRemove->setEnabled(false);
}

void frmLogin::UserList_Click() {
  const bool chosen = !UserList->selectedItems().isEmpty();
  txtPassword->setEnabled(chosen);
  btnOK->setEnabled(chosen);
  btnRemove->setEnabled(chosen);
  if (chosen) txtPassword->setFocus();
}

void frmLogin::btnOK_MouseUp() {
  const QString name = UserList->selectedItems().isEmpty() ? QString() : UserList->selectedItems().front()->text();
  Recordset user = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE \"User Name\" = ?"), {name});
  const QString password = user.Field(QStringLiteral("Password")).toText();
  SelectedUserID = user.Field(QStringLiteral("ID")).toLong();
  user.Close();

  const QString typed = txtPassword->text().toLower();
  // A player whose password happens to be the master password gets in here, with no override box.
  if (typed == password.toLower()) {
    finishLogin();
    return;
  }
  // The teacher's password opens any account and shows its password, to be read out to the player.
  if (typed == MasterPassword.toLower()) {
    MsgBox(QStringLiteral("Password is '") + password + QStringLiteral("'"), Buttons::Ok, QStringLiteral("Password Overide"));
    finishLogin();
    return;
  }
  // SelectedUserID keeps the tried player meanwhile; only a later finish passes it on.
  MsgBox(QStringLiteral("Invalid Password, try again!"), Buttons::Ok, QStringLiteral("Login"));
  txtPassword->setFocus();
  ui().selectAll(*txtPassword);
}

void frmLogin::btnCancel_MouseUp() {
  SelectedUserID = -1;
  finishLogin();
}

void frmLogin::btnNewUser_MouseUp() {
  frmNewUser& newUser = newUserForm();
  ui().showModal(newUser);
  // Coming back from the new-player form activates this one again.
  Form_Activate();
  if (newUser.NewUserID == -1) return;
  // A new player is in at once, with no second question for the password.
  SelectedUserID = newUser.NewUserID;
  finishLogin();
}

void frmLogin::btnRemove_MouseUp() {
  const QString answer = InputBox(QStringLiteral("Please enter Master Password"), QStringLiteral("Remove User"));
  // A wrong password, an empty one or Cancel: nothing happens, and nothing is said.
  if (answer.toLower() != MasterPassword.toLower()) return;
  RemoveUser(UserList->selectedItems().front()->text());
  Form_Activate();
}

bool frmLogin::txtPassword_KeyPress(int keyAscii) {
  if (keyAscii != kEnterKey) return false;
  btnOK->mouseDown();
  btnOK->mouseUp();
  return true;
}

void frmLogin::finishLogin() {
  hide();
  if (SelectedUserID != -1 && SplashExists()) TheSplash().hide();
}

// The form counts as activated when it comes up; coming back from the new-player form is the other
// way (btnNewUser_MouseUp). Switching back from another program changes nothing here.
void frmLogin::showEvent(QShowEvent* event) {
  centreOnScreen(*this);
  Form_Activate();
  QDialog::showEvent(event);
}

void frmLogin::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_background);
}

bool frmLogin::eventFilter(QObject* watched, QEvent* event) {
  if (watched != txtPassword || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
  bool taken = false;
  guarded("login password key", [this, &taken] { taken = txtPassword_KeyPress(kEnterKey); });
  return taken;
}

frmLogin& loginForm() {
  static auto* form = new frmLogin;
  return *form;
}

}  // namespace fh
