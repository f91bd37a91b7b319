#include "computer/ComputerScreen.h"

namespace fh {

// Not yet: the three screens (How Am I Doing, Clean Air, Home Checkup) arrive with their own units.
ComputerScreen* ComputerScreenFor(i16) { return nullptr; }

}  // namespace fh
