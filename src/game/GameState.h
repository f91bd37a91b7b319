#pragma once

#include "platform/base/Values.h"

#include <QString>

#include <memory>

// The program-wide variables. No object owns them; every subsystem reads and writes them directly.
namespace fh {

class Database;
class cSet;
class cShot;

// The program's folder + "Database\": the folder of the database and of the world files.
extern QString DatabasePath;
// The root of the resource tree, ending in a backslash; upper-cased when read from the settings.
extern QString ResourcePath;
// The teacher's password.
extern QString MasterPassword;

// The open game database, from Start to Exit.
extern std::shared_ptr<Database> GameDB;
// GameDB itself; reaching for it before the game has opened it is "Object variable not set".
Database& RequireGameDB();
extern std::int32_t CurrentUserID;
extern QString CurrentUserName;
extern i16 CurrentShotIndex;
extern float GameElapsedTime;  // play time in days
extern bool UserHasWonGame;
extern i16 BaseStateADR;
extern i16 BaseObjectADR;
extern i16 CurrentScore;
extern bool ModalOpen;
extern i16 ActiveComputerScreen;

extern std::shared_ptr<cSet> CurrentSet;
extern std::shared_ptr<cShot> CurrentShot;
// The two above, where there must be one; without it "Object variable not set".
cSet& RequireCurrentSet();
cShot& RequireCurrentShot();

extern QString StartSetFile;
extern i16 GameMode;  // 1 play, 0 edit
extern i16 TVChannel;
extern QString LastDialogText;

// Every variable above back to what it is when the program starts: no world, no database, no
// player. The folders and the master password are kept, since they belong to the installation.
void resetGameState();

}  // namespace fh
