#include "game/GameState.h"

#include "platform/base/Failure.h"

namespace fh {

QString DatabasePath;
QString ResourcePath;
QString MasterPassword;

std::shared_ptr<Database> GameDB;

Database& RequireGameDB() {
  if (!GameDB) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("GameDB"));
  return *GameDB;
}
std::int32_t CurrentUserID = 0;
QString CurrentUserName;
i16 CurrentShotIndex = 0;
float GameElapsedTime = 0;
bool UserHasWonGame = false;
i16 BaseStateADR = 0;
i16 BaseObjectADR = 0;
i16 CurrentScore = 0;
bool ModalOpen = false;
i16 ActiveComputerScreen = 0;

std::shared_ptr<cSet> CurrentSet;
std::shared_ptr<cShot> CurrentShot;

cSet& RequireCurrentSet() {
  if (!CurrentSet) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("CurrentSet"));
  return *CurrentSet;
}

cShot& RequireCurrentShot() {
  if (!CurrentShot) throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("CurrentShot"));
  return *CurrentShot;
}

QString StartSetFile;
i16 GameMode = 1;
i16 TVChannel = 0;
QString LastDialogText;

// The set goes before the shot it holds.
void resetGameState() {
  CurrentSet.reset();
  CurrentShot.reset();
  GameDB.reset();
  CurrentUserID = 0;
  CurrentUserName.clear();
  CurrentShotIndex = 0;
  GameElapsedTime = 0;
  UserHasWonGame = false;
  BaseStateADR = 0;
  BaseObjectADR = 0;
  CurrentScore = 0;
  ModalOpen = false;
  ActiveComputerScreen = 0;
  StartSetFile.clear();
  GameMode = 1;
  TVChannel = 0;
  LastDialogText.clear();
}

}  // namespace fh
