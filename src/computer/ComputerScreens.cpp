#include "computer/ComputerScreens.h"

#include "computer/Comp_CleanAir.h"
#include "computer/Comp_HomeCheckup.h"
#include "computer/Comp_HowAmIDoing.h"
#include "game/Screens.h"

namespace fh {

void LendComputerScreens() {
  screens().computer = [](i16 number) -> ComputerScreen* {
    switch (number) {
      case 1: return &HowAmIDoingForm();
      case 3: return &CleanAirForm();
      case 4: return &HomeCheckupForm();
      default: return nullptr;
    }
  };
}

}  // namespace fh
