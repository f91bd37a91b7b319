#include "world/Players.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "world/SaveFailure.h"

namespace fh {

namespace {

// Set once the player has been told that a write of the play time failed; a write that works
// again clears it, so that a later failure is told too.
bool playTimeFailureTold = false;

}  // namespace

void WriteUserField(const QString& column, const QVariant& value) {
  Recordset user = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {CurrentUserID});
  if (user.IsEOF()) throw RuntimeFailure(Failure::DatabaseFailure, QStringLiteral("player %1 is no longer in table Users").arg(CurrentUserID));
  user.Edit();
  user.SetField(column, value);
  user.Update();
  user.Close();
}

void SetWonGame() {
  if (UserHasWonGame) return;
  UserHasWonGame = true;
  WriteUserField(QStringLiteral("HasWonGame"), 1);
}

void writePlayTime() {
  WriteUserField(QStringLiteral("ElapsedTime"), GameElapsedTime);
  playTimeFailureTold = false;
}

void keepPlayTime() {
  try {
    writePlayTime();
  } catch (const RuntimeFailure& failure) {
    // Only a write the database refused is the player's business; a file that is gone, or any other
    // failure, ends the game with its report, as everywhere else.
    if (!IsSaveFailure(failure)) throw;
    // Once, not every minute: the player can't mend it, and the game is worth going on with.
    if (playTimeFailureTold) return;
    playTimeFailureTold = true;
    tellPlayTimeNotSaved(failure, QStringLiteral("You can go on playing; it tries again every minute."));
  }
}

void tellPlayTimeNotSaved(const RuntimeFailure& failure, const QString& after) {
  MsgBox(QStringLiteral("The game could not save your play time just now.\n\n") + failure.message() + QStringLiteral("\n\n") + after);
}

}  // namespace fh
