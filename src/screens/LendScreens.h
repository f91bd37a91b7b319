#pragma once

namespace fh {

// Lends the script's modal screens (the info box, the object selection) and the stereo's music
// dialog to the logic below, which opens them without knowing them.
void LendChoiceScreens();

}  // namespace fh
