#pragma once

#include "platform/base/Values.h"

#include <QString>

// The two ways a container's state changes. Each writes both copies, the container in memory for
// the conditions and the user's row in the database for the saved queries, and then refreshes the
// current shot: with `refresh` the backdrop is chosen anew, without it only score and sprites.
namespace fh {

// Sets the state without a word to the player: scripts use it when they say something else.
void SetContainer(const QString& name, i16 state, bool refresh);

// Steps the state 0, 1, 0 and tells the player: "<Friendly Name> is now <verbage>". Only the exact
// value 2 wraps, so a state set beyond 1 goes on counting up.
void ToggleContainer(const QString& name, bool refresh);

}  // namespace fh
