#pragma once

#include "game/Screens.h"
#include "platform/desktop/PictureForm.h"

class QLabel;

namespace fh {

class PictureButton;
class RichTextBox;

// A fact box: the entry of table InfoBoxes named by InfoBoxName, read anew each time the box comes
// up, so that one form shows them all. While it is up the play time stands still.
class InfoBox final : public PictureForm, public ChoiceScreen {
 public:
  explicit InfoBox(const QRect& view);

  QString InfoBoxName;

  QLabel* Title;
  RichTextBox* Content;
  PictureButton* btnOK;

  QWidget& form() override { return *this; }
  void Init(const QString& name) override { InfoBoxName = name; }
  void TakePalette(const QPixmap& picture) override { Palette = picture; }

  // Reads the entry; an unknown name shows itself as the title over "< NOT FOUND >".
  void Form_Activate();
  void btnOK_Click();

 protected:
  void showEvent(QShowEvent* event) override;
};

// The one InfoBox, made on first use and centred then over `view`.
InfoBox& InfoBoxForm(const QRect& view);

}  // namespace fh
