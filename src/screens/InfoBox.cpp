#include "screens/InfoBox.h"

#include "game/GameState.h"
#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/data/Database.h"
#include "platform/desktop/PictureButton.h"
#include "platform/desktop/RichTextBox.h"
#include "platform/desktop/WindowArt.h"
#include "screens/BoxLook.h"

#include <QLabel>

namespace fh {

InfoBox::InfoBox(const QRect& view) : PictureForm(QStringLiteral("InfoBox"), QStringLiteral("Info"), QStringLiteral("InfoBack")) {
  Palette = WindowPixmap(kPalettePicture);
  Title = boxTitle(this, twipsRect(150, 150, 3600, 375));
  Content = new RichTextBox(QStringLiteral("Content"), this);
  Content->setGeometry(twipsRect(150, 510, 3600, 2895));
  btnOK = WindowArtButton(this, QStringLiteral("btnOK"), QStringLiteral("Close Info Box"), QStringLiteral("Ok"),
                          twipsRect(3885, 2520, 795, 960).topLeft());
  connect(btnOK, &QPushButton::clicked, this, [this] { guarded("InfoBox OK", [this] { btnOK_Click(); }); });
  centreOver(view);
}

void InfoBox::Form_Activate() {
  Recordset entry = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM InfoBoxes WHERE Name = ?"), {InfoBoxName});
  if (entry.IsEOF()) {
    Title->setText(InfoBoxName);
    Content->setText(QStringLiteral("< NOT FOUND >"));
  } else {
    Title->setText(entry.Field(QStringLiteral("Title")).toText());
    Content->setText(entry.Field(QStringLiteral("Text")).toText());
  }
  entry.Close();
  ModalOpen = true;
}

void InfoBox::btnOK_Click() {
  ModalOpen = false;
  hide();
}

void InfoBox::showEvent(QShowEvent* event) {
  PictureForm::showEvent(event);
  guarded("InfoBox", [this] { Form_Activate(); });
  btnOK->setFocus();
}

InfoBox& InfoBoxForm(const QRect& view) {
  static auto* form = new InfoBox(view);
  return *form;
}

}  // namespace fh
