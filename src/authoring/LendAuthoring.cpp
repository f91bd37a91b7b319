#include "authoring/LendAuthoring.h"

#include "authoring/frmHotSpotPopup.h"
#include "authoring/frmSetPopup.h"
#include "authoring/frmShotPopup.h"
#include "game/Screens.h"
#include "platform/base/Ui.h"

namespace fh {

void LendAuthoringDialogs() {
  Screens& lent = screens();
  lent.hotSpotDialog = [] { ui().showModal(HotSpotPopupForm()); };
  lent.setDialog = [] { ui().showModal(SetPopupForm()); };
  lent.shotDialog = [] { ui().showModal(ShotPopupForm()); };
}

}  // namespace fh
