#include "screens/ObjectHelp.h"

#include "platform/base/Guard.h"
#include "platform/base/Twips.h"
#include "platform/desktop/PictureButton.h"
#include "platform/desktop/RichTextBox.h"
#include "platform/desktop/WindowArt.h"
#include "screens/BoxLook.h"

namespace fh {

ObjectHelp::ObjectHelp(const QRect& view)
    : PictureForm(QStringLiteral("ObjectHelp"), QStringLiteral("Help"), QStringLiteral("HelpBack")) {
  Palette = WindowPixmap(kPalettePicture);
  Title = boxTitle(this, twipsRect(195, 180, 3585, 345));
  HelpText = new RichTextBox(QStringLiteral("HelpText"), this);
  HelpText->setGeometry(twipsRect(165, 510, 3615, 2940));
  btnOK = WindowArtButton(this, QStringLiteral("btnOK"), QStringLiteral("Close Help Screen"), QStringLiteral("Ok"),
                          twipsRect(3885, 2520, 795, 960).topLeft());
  connect(btnOK, &QPushButton::clicked, this, [this] { guarded("ObjectHelp OK", [this] { btnOK_Click(); }); });
  centreOver(view);
}

void ObjectHelp::showEvent(QShowEvent* event) {
  PictureForm::showEvent(event);
  btnOK->setFocus();
}

ObjectHelp& ObjectHelpForm(const QRect& view) {
  static auto* form = new ObjectHelp(view);
  return *form;
}

}  // namespace fh
