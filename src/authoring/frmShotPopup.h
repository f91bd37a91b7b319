#pragma once

#include "authoring/AuthoringForm.h"

class QCheckBox;

namespace fh {

// The shown shot: its name, the names of its left and right neighbours and whether play time runs
// on it. The only way out is OK, which applies the boxes; the neighbours aren't checked against
// the set. It needs a shown shot.
class frmShotPopup final : public AuthoringForm {
 public:
  frmShotPopup();

  QLabel* Label2;
  QLineEdit* sName;
  QLabel* Label1;
  QLineEdit* ShotToLeft;
  QLabel* Label3;
  QLineEdit* ShotToRight;
  QCheckBox* chkGoElapsedTime;
  QPushButton* btnOK;

  // The last name the name box held without a blank.
  QString PreviousName;

  void btnOK_Click();

 protected:
  void Form_Activate() override;
};

// The one frmShotPopup, made on first use.
frmShotPopup& ShotPopupForm();

}  // namespace fh
