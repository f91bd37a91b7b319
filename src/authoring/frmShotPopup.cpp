#include "authoring/frmShotPopup.h"

#include "game/GameState.h"
#include "platform/base/Twips.h"
#include "world/cShot.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace fh {

namespace {

// Every control stands at the same left edge and has the same width.
QRect row(int top, int height) { return twipsRect(135, top, 2115, height); }

}  // namespace

frmShotPopup::frmShotPopup() : AuthoringForm(QStringLiteral("frmShotPopup"), QStringLiteral("Shot"), 2385, 3660) {
  Label2 = addLabel(this, "Label2", QStringLiteral("Name"), row(120, 375));
  sName = addTextBox(this, "sName", row(480, 360));
  Label1 = addLabel(this, "Label1", QStringLiteral("Shot to Left"), row(1080, 375));
  ShotToLeft = addTextBox(this, "ShotToLeft", row(1440, 360));
  Label3 = addLabel(this, "Label3", QStringLiteral("Shot to Right"), row(1800, 375));
  ShotToRight = addTextBox(this, "ShotToRight", row(2160, 360));
  chkGoElapsedTime = placed(new QCheckBox(QStringLiteral("Go Elapsed Time?"), this), "chkGoElapsedTime", row(2700, 252));
  btnOK = addButton("btnOK", QStringLiteral("OK"), row(3150, 375), [this] { btnOK_Click(); });
  refuseBlanks(sName, PreviousName);
}

void frmShotPopup::Form_Activate() {
  const cShot& shot = RequireCurrentShot();
  sName->setText(shot.sName);
  ShotToLeft->setText(shot.ShotToLeft);
  ShotToRight->setText(shot.ShotToRight);
  chkGoElapsedTime->setChecked(static_cast<bool>(shot.GoElapsedTime));
}

void frmShotPopup::btnOK_Click() {
  cShot& shot = RequireCurrentShot();
  shot.sName = sName->text();
  shot.ShotToLeft = ShotToLeft->text();
  shot.ShotToRight = ShotToRight->text();
  shot.GoElapsedTime = chkGoElapsedTime->isChecked();
  hide();
}

frmShotPopup& ShotPopupForm() {
  static auto* form = new frmShotPopup;
  return *form;
}

}  // namespace fh
