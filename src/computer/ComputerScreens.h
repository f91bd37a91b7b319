#pragma once

namespace fh {

// Lends the computer's three screens to the script word `computer`.
void LendComputerScreens();

}  // namespace fh
