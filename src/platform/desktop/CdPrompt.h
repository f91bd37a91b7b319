#pragma once

#include "platform/base/Ui.h"

#include <functional>

namespace fh {

class RuntimeFailure;

// What the game says when a file of the resource tree can't be read: it assumes the tree is on a
// CD that isn't in the drive.
inline const QString kInsertCdText = QStringLiteral("Please insert the Fernhollow Game CD into the CD-ROM drive.");

// Asks for the CD, with OK and Cancel, after `failure`. The box's details name the file that
// couldn't be read: the one the failure names, or else `file`, the one the failing step was after.
Answer AskForCd(const RuntimeFailure& failure, const QString& file = {});

// Runs `step` until it doesn't fail with a run-time failure. After each failure the player is asked
// for the CD, as above: OK runs the step again, Cancel ends the program at once.
void RetryWithCdPrompt(const std::function<void()>& step, const QString& file = {});

}  // namespace fh
