#include "startup/frmNewUser.h"

#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/base/Ui.h"
#include "platform/desktop/PictureButton.h"
#include "platform/desktop/WindowArt.h"
#include "startup/LoginLook.h"
#include "startup/Users.h"

#include <QLineEdit>
#include <QPainter>

namespace fh {

namespace {

QLineEdit* greyBox(QWidget* parent, const QString& name, const QRect& place) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setGeometry(place);
  paintBoxGrey(*box);
  return box;
}

}  // namespace

frmNewUser::frmNewUser(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmNewUser"));
  setWindowTitle(QStringLiteral("New User"));
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  setFixedSize(twipsToPixels(4785), twipsToPixels(3600));
  m_background = WindowPixmap(QStringLiteral("NewUserBack"));

  // The words beside the boxes are part of the background picture.
  txtUserName = greyBox(this, QStringLiteral("txtUserName"), twipsRect(1545, 1290, 2325, 345));
  txtPassword = greyBox(this, QStringLiteral("txtPassword"), twipsRect(1545, 1695, 2325, 345));

  cmdOK = WindowArtButton(this, QStringLiteral("cmdOK"), {}, QStringLiteral("Ok"), twipsRect(3885, 2520, 795, 960).topLeft());
  cmdOK->setDefault(true);
  cmdCancel = WindowArtButton(this, QStringLiteral("cmdCancel"), {}, QStringLiteral("NewUserCancel"), twipsRect(135, 2535, 1320, 960).topLeft());
  cmdCancel->setAutoDefault(false);

  connect(cmdOK, &QPushButton::clicked, this, [this] { guarded("frmNewUser OK", [this] { cmdOK_Click(); }); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { guarded("frmNewUser Cancel", [this] { cmdCancel_Click(); }); });
}

void frmNewUser::Form_Activate() {
  txtUserName->clear();
  txtPassword->clear();
}

void frmNewUser::cmdOK_Click() {
  if (txtUserName->text().isEmpty()) {
    MsgBox(QStringLiteral("Username can not be blank."));
    return;
  }
  if (txtPassword->text().isEmpty()) {
    MsgBox(QStringLiteral("Password can not be blank."));
    return;
  }
  NewUserID = AddUser(txtUserName->text(), txtPassword->text());
  if (NewUserID != -1) hide();
}

void frmNewUser::cmdCancel_Click() {
  NewUserID = -1;
  hide();
}

void frmNewUser::reject() {
  guarded("frmNewUser Cancel", [this] { cmdCancel_Click(); });
}

void frmNewUser::showEvent(QShowEvent* event) {
  centreOnScreen(*this);
  Form_Activate();
  txtUserName->setFocus();
  QDialog::showEvent(event);
}

void frmNewUser::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_background);
}

frmNewUser& newUserForm() {
  static auto* form = new frmNewUser;
  return *form;
}

}  // namespace fh
