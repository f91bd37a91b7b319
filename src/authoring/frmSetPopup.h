#pragma once

#include "authoring/AuthoringForm.h"
#include "platform/base/Values.h"

class QListWidget;

namespace fh {

// The loaded set: its name and the list of its shots, with adding, deleting and going to a shot.
// Opened with no set loaded it starts one, the only way to start a world from nothing. Changes stay
// in memory until the set is saved.
class frmSetPopup final : public AuthoringForm {
 public:
  frmSetPopup();

  QLabel* Label2;
  QLineEdit* sName;
  QLabel* Label1;
  QListWidget* Shots;
  QPushButton* btnDel;
  QPushButton* btnAdd;
  QPushButton* btnOK;

  // The last name the name box held without a blank.
  QString PreviousName;

  // Asks for a name, adds the shot, shows it and closes the form as OK does.
  void btnAdd_Click();
  // Deletes the shot chosen in the list; the form stays open.
  void btnDel_Click();
  // Names the set from the box and goes to the shot chosen in the list, if any.
  void btnOK_Click();

 protected:
  void Form_Activate() override;

 private:
  void FillShots();
  // The row chosen in the list, -1 for none.
  i16 ListIndex() const;
};

// The one frmSetPopup, made on first use.
frmSetPopup& SetPopupForm();

}  // namespace fh
