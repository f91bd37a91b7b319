#include "computer/ComputerScreen.h"

#include "computer/Comp_CleanAir.h"
#include "computer/Comp_HomeCheckup.h"
#include "computer/Comp_HowAmIDoing.h"

namespace fh {

ComputerScreen* ComputerScreenFor(i16 number) {
  switch (number) {
    case 1: return &HowAmIDoingForm();
    case 3: return &CleanAirForm();
    case 4: return &HomeCheckupForm();
    default: return nullptr;
  }
}

}  // namespace fh
