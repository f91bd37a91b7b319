#pragma once

#include "platform/Ui.h"

#include <functional>

namespace fh {

// What the game says when a file of the resource tree can't be read: it assumes the tree is on a
// CD that isn't in the drive.
inline const QString kInsertCdText = QStringLiteral("Please insert the Fernhollow Game CD into the CD-ROM drive.");

// Asks for the CD, with OK and Cancel.
Answer AskForCd();

// Runs `step` until it doesn't fail with a run-time failure. After each failure the player is asked
// for the CD: OK runs the step again, Cancel ends the program at once.
void RetryWithCdPrompt(const std::function<void()>& step);

}  // namespace fh
