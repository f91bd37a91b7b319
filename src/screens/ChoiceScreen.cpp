#include "screens/ChoiceScreen.h"

namespace fh {

// Not yet: the info box arrives with its own unit.
ChoiceScreen* InfoBoxScreen() { return nullptr; }

// Not yet: the object selection arrives with its own unit.
ChoiceScreen* SelectObjectScreen() { return nullptr; }

}  // namespace fh
