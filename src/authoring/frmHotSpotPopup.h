#pragma once

#include "authoring/AuthoringForm.h"

#include <memory>

class QCheckBox;
class QGroupBox;
class QPlainTextEdit;

namespace fh {

class cHotSpot;

// Edits the hotspot at the main view's CurrentHotSpotIndex on the shown shot: its name, its
// scripts, its two flags and its cursor. OK puts the boxes into the hotspot, which keeps them in
// memory until the set is saved; Del removes the hotspot without a question.
class frmHotSpotPopup final : public AuthoringForm {
 public:
  frmHotSpotPopup();

  QLabel* Label2;
  QLineEdit* txtName;
  QGroupBox* Frame1;
  QLabel* Label3;
  QPlainTextEdit* txtScript;  // On_Click: one script line a line
  QLabel* Label4;
  QPlainTextEdit* txtRollover;  // On_Rollover: one script line
  QGroupBox* Frame2;
  QCheckBox* chkEnabled;
  QCheckBox* ChkQuiet;
  QLabel* Label1;
  QLineEdit* txtIcon;  // the cursor's number
  QPushButton* btnDel;
  QPushButton* btnOK;

  // The last name the name box held without a blank.
  QString PreviousName;

  void btnOK_Click();
  void btnDel_Click();

 protected:
  // With no hotspot lit the form hides again at once.
  void Form_Activate() override;

 private:
  std::shared_ptr<cHotSpot> currentHotSpot() const;
};

// The one frmHotSpotPopup, made on first use.
frmHotSpotPopup& HotSpotPopupForm();

}  // namespace fh
