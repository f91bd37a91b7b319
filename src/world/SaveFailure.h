#pragma once

#include <functional>

namespace fh {

class RuntimeFailure;

// Whether a failure is the database refusing to keep the player's progress (held by another
// program for too long, a folder that can't be written, a row that is gone), rather than a fault
// of the world or of a script.
bool IsSaveFailure(const RuntimeFailure& failure);

// Whether the database file went away under the game (removed or replaced): nothing more can be
// kept, so even the silent nets let this one through, to end the game with its report.
bool IsLostDatabase(const RuntimeFailure& failure);

// Tells the player that the game could not save, and why, and takes the house in memory back to
// what the database holds, so that the screen shows what is kept.
void TellSaveFailed(const RuntimeFailure& failure);

// Runs `step`. A failure to save is told as above and ends the step; any other failure goes on up.
void TellingSaveFailures(const std::function<void()>& step);

}  // namespace fh
