#include "authoring/frmSetPopup.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/base/Ui.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace fh {

frmSetPopup::frmSetPopup() : AuthoringForm(QStringLiteral("frmSetPopup"), QStringLiteral("Set"), 2415, 4320) {
  Label2 = addLabel(this, "Label2", QStringLiteral("Name"), twipsRect(120, 120, 2175, 375));
  sName = addTextBox(this, "sName", twipsRect(120, 480, 2172, 330));
  Label1 = addLabel(this, "Label1", QStringLiteral("Shots"), twipsRect(120, 960, 2175, 375));
  Shots = placed(new QListWidget(this), "Shots", twipsRect(120, 1320, 2175, 2220));
  Shots->setSelectionMode(QAbstractItemView::SingleSelection);
  btnDel = addButton("btnDel", QStringLiteral("Del"), twipsRect(120, 3840, 495, 375), [this] { btnDel_Click(); });
  btnAdd = addButton("btnAdd", QStringLiteral("&Add"), twipsRect(720, 3840, 615, 375), [this] { btnAdd_Click(); });
  btnOK = addButton("btnOK", QStringLiteral("OK"), twipsRect(1440, 3840, 855, 375), [this] { btnOK_Click(); });
  // A double click on a shot is the authors' way of going there.
  connect(Shots, &QListWidget::itemDoubleClicked, this, [this] { guarded("frmSetPopup Shots", [this] { btnOK_Click(); }); });
  refuseBlanks(sName, PreviousName);
}

// A set made here has no shots, and the list keeps whatever it showed last.
void frmSetPopup::Form_Activate() {
  if (!CurrentSet) {
    CurrentSet = std::make_shared<cSet>();
    CurrentSet->sName = QStringLiteral("NewSet");
    sName->setText(CurrentSet->sName);
  } else {
    sName->setText(CurrentSet->sName);
    FillShots();
  }
  btnDel->setEnabled(CurrentSet->nNumShots > 0);
}

// The shown shot is chosen by its name; of two shots of that name the later one.
void frmSetPopup::FillShots() {
  Shots->clear();
  const cSet& set = RequireCurrentSet();
  for (i16 i = 0; i < set.nNumShots; ++i) {
    const std::shared_ptr<cShot> shot = set.Shot(i);
    if (!shot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("shot %1").arg(i));
    Shots->addItem(shot->sName);
    if (shot->sName == RequireCurrentShot().sName) Shots->setCurrentRow(i);
  }
}

i16 frmSetPopup::ListIndex() const {
  const QList<QListWidgetItem*> chosen = Shots->selectedItems();
  return chosen.isEmpty() ? i16{-1} : toI16(Shots->row(chosen.front()));
}

// The name is taken as it comes: empty for a cancelled box, and blanks are allowed here.
void frmSetPopup::btnAdd_Click() {
  const QString name = InputBox(QStringLiteral("Enter name for new shot"), QStringLiteral("Add Shot"));
  cSet& set = RequireCurrentSet();
  set.ShowShot(set.AddShot(name));
  FillShots();
  btnOK_Click();
}

// Del stays off once the last shot is gone, until the form is opened again.
void frmSetPopup::btnDel_Click() {
  cSet& set = RequireCurrentSet();
  set.DeleteShot(ListIndex());
  FillShots();
  if (set.nNumShots > 0)
    Shots->setCurrentRow(0);
  else
    btnDel->setEnabled(false);
}

void frmSetPopup::btnOK_Click() {
  cSet& set = RequireCurrentSet();
  set.sName = sName->text();
  set.ShowShot(ListIndex());
  hide();
}

frmSetPopup& SetPopupForm() {
  static auto* form = new frmSetPopup;
  return *form;
}

}  // namespace fh
