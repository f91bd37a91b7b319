#pragma once

namespace fh {

// Lends the authoring dialogs of edit mode to the main view, which opens them without knowing them:
// each is shown modally. Once, at the program's start.
void LendAuthoringDialogs();

}  // namespace fh
