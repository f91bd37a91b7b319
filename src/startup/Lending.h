#pragma once

namespace fh {

// Lends the windows to the layers below that open them without knowing them: the script's modal
// screens, the music dialog, the computer's screens, the authoring dialogs of edit mode, the setup
// dialog and the end of a session.
// Once, at the program's start.
void LendWindows();

}  // namespace fh
