#pragma once

#include "game/Screens.h"
#include "platform/base/Values.h"
#include "platform/data/Recordset.h"
#include "platform/desktop/PictureForm.h"

#include <optional>

class QLabel;

namespace fh {

class PictureButton;
class QueryDef;

// The choice of what stands in a container: the player walks round the objects the database allows
// for it, reads each one's information or savings, and leaves only by choosing one with OK. The
// choice goes to the set's container and to the player's row at once. While the screen is up the
// play time stands still.
class SelectObject final : public PictureForm, public ChoiceScreen {
 public:
  explicit SelectObject(const QRect& view);

  QLabel* Image1;
  QLabel* ObjectName;
  QLabel* Description;
  PictureButton* btnLeft;
  PictureButton* btnRight;
  PictureButton* btnInformation;
  PictureButton* btnSavings;
  PictureButton* btnHelp;
  PictureButton* btnOK;

  QWidget& form() override { return *this; }
  // Opens on the object that stands in the container, or on the first for none or an unknown one.
  // A container without a row for the player, or without objects, is told in a message box; the
  // screen is shown all the same, empty.
  void Init(const QString& containerName) override;
  void TakePalette(const QPixmap& picture) override { Palette = picture; }

  void btnLeft_Click();
  void btnRight_Click();
  void btnInformation_Click();
  void btnSavings_Click();
  void btnHelp_Click();
  void btnOK_Click();

 private:
  void ShowObject();
  void showObjectOnce();
  // The objects on offer, open from Init to OK; before that "Object variable not set".
  Recordset& objectList();
  QueryDef containerQuery() const;

  QRect m_view;
  QString ContainerName;
  std::optional<Recordset> ObjectList;
  QString HelpTextCache;
  QString HelpTitle;
  i16 InfoMode = 1;  // 1 information, 2 savings
};

// The one SelectObject, made on first use and centred then over `view`.
SelectObject& SelectObjectForm(const QRect& view);

}  // namespace fh
