#pragma once

#include "platform/desktop/PictureForm.h"

class QLabel;

namespace fh {

class PictureButton;
class RichTextBox;

// The help of a container, over the object selection. Its caller writes the title and the text.
// It leaves ModalOpen as it is: the object selection still lies beneath it.
class ObjectHelp final : public PictureForm {
 public:
  explicit ObjectHelp(const QRect& view);

  QLabel* Title;
  RichTextBox* HelpText;
  PictureButton* btnOK;

  void btnOK_Click() { hide(); }

 protected:
  void showEvent(QShowEvent* event) override;
};

// The one ObjectHelp, made on first use and centred then over `view`.
ObjectHelp& ObjectHelpForm(const QRect& view);

}  // namespace fh
