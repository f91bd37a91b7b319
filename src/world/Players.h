#pragma once

#include <QString>
#include <QVariant>

// The logged-in player's row of table Users, and what a game writes into it as it goes: the shot,
// the win and the play time.
namespace fh {

class RuntimeFailure;

// Writes one field of the player's row at once. A player taken out at another screen while still
// playing here has no row: that is a failure to save, told like any other.
void WriteUserField(const QString& column, const QVariant& value);

// Records the win, once. Play goes on.
void SetWonGame();

// The play time as it stands, into the player's row.
void writePlayTime();
// Writes the play time while play goes on, so that a crash loses at most the time since. A write
// the database refuses is told to the player once, and play goes on; any other failure goes on up.
void keepPlayTime();
// Tells the player that the play time couldn't be saved, why, and what happens now (`after`).
void tellPlayTimeNotSaved(const RuntimeFailure& failure, const QString& after);

}  // namespace fh
