#include "startup/Lending.h"

#include "authoring/LendAuthoring.h"
#include "computer/ComputerScreens.h"
#include "game/Screens.h"
#include "platform/base/Ui.h"
#include "screens/LendScreens.h"
#include "startup/Session.h"
#include "startup/frmSetup.h"

namespace fh {

void LendWindows() {
  LendChoiceScreens();
  LendComputerScreens();
  LendAuthoringDialogs();
  screens().setup = [] { ui().showModal(setupForm()); };
  screens().endGame = [] { EndGame(); };
}

}  // namespace fh
