#include "startup/Session.h"

#include "game/GameState.h"
#include "mainview/ShotView.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "platform/data/Database.h"
#include "platform/files/WriteCheck.h"
#include "screens/SelectMusic.h"
#include "script/Interpreter.h"
#include "sound/cSoundMgr.h"
#include "startup/ProgramOptions.h"
#include "startup/Splash.h"
#include "startup/frmLogin.h"
#include "world/Dialogs.h"
#include "world/Players.h"
#include "world/SaveFailure.h"
#include "world/SetFile.h"
#include "world/cSet.h"

namespace fh {

namespace {

const QString kDatabaseFile = QStringLiteral("Fernhollow.mdb");

// The first row's column of a saved query, or `otherwise` when it gives no rows.
i16 firstValue(const QString& query, const QString& column, i16 otherwise) {
  Recordset rows = RequireGameDB().OpenRecordset(query);
  const i16 value = rows.IsEOF() ? otherwise : rows.Field(column).toI16();
  rows.Close();
  return value;
}

}  // namespace

void StartGame() {
  // Nobody should play a game that can't be kept: that is found out before anyone logs in.
  const QString unwritable = whyNotWritable(DatabasePath, kDatabaseFile);
  if (!unwritable.isEmpty()) {
    MsgBox(QStringLiteral("The game can't save in its database folder, so it can't start.\n\n") + unwritable +
           QStringLiteral("\n\nAsk your teacher to let the game write there."));
    TheSplash().showSplash();
    return;
  }
  // A login cancelled before leaves the database open; it is simply opened again.
  GameDB = Database::OpenDatabase(DatabasePath + kDatabaseFile);
  if (!LoginUser()) {
    TheSplash().showSplash();
    return;
  }

  // The scale of the score's two halves, read anew for every player.
  BaseStateADR = firstValue(QStringLiteral("ContainerDefaulStateADR"), QStringLiteral("CountOfName"), BaseStateADR);
  BaseObjectADR = firstValue(QStringLiteral("ContainerDefaultObjectlADR"), QStringLiteral("SumOfADR"), BaseObjectADR);
  ModalOpen = false;
  ActiveComputerScreen = 0;

  SoundMgr().Init();

  // The world's first commands: sounds to load, and the "startset" line that names the set file.
  Recordset startUp = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM StartUp"));
  RunScript(startUp.Field(QStringLiteral("Script")).toText());
  startUp.Close();

  // The first use of the main view creates and loads it.
  ShotView& view = TheShotView();
  view.setAuthoring(AuthorMode);
  view.SetCursor(103);
  // The shot's friendly name takes the line's place as soon as LoadSet shows the shot, so the
  // welcome is seen only while the set loads.
  ShowDialogString(QStringLiteral("Welcome to Fernhollow ") + CurrentUserName + QStringLiteral("!"));
  view.showView();
  // The player comes back at the shot of their record, not at the one the set file keeps.
  LoadSet(StartSetFile);
}

bool LoginUser() {
  frmLogin& login = loginForm();
  ui().showModal(login);
  const std::int32_t id = login.SelectedUserID;
  if (id == -1) return false;

  Recordset user = RequireGameDB().OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {id});
  CurrentUserID = id;
  CurrentUserName = user.Field(QStringLiteral("User Name")).toText();
  CurrentShotIndex = user.Field(QStringLiteral("Current Shot")).toI16();
  GameElapsedTime = user.Field(QStringLiteral("ElapsedTime")).toSingle();
  UserHasWonGame = user.Field(QStringLiteral("HasWonGame")).toBool();
  user.Close();

  // A world updated since the player's last game may have fixtures the player has no row for yet:
  // they start as a new player's would.
  QueryDef newContainers = RequireGameDB().QueryDefs(QStringLiteral("Make New User"));
  newContainers.SetParameter(QStringLiteral("User ID"), id);
  newContainers.Execute();
  newContainers.Close();
  return true;
}

bool gameBeingPlayed() { return CurrentSet != nullptr; }

void closeGame() {
  view().StopVideo();
  // The music dialog's choice doesn't outlive the session; the music itself stops below.
  UnloadSelectMusic();
  // A play time the database won't take is told, and the game ends all the same.
  try {
    writePlayTime();
  } catch (const RuntimeFailure& failure) {
    if (!IsSaveFailure(failure)) throw;
    tellPlayTimeNotSaved(failure, QStringLiteral("The game ends all the same."));
  }
  SoundMgr().UnloadSounds();
  CurrentSet.reset();
  RequireGameDB().Close();
}

void EndGame() {
  closeGame();
  // The main view stays loaded behind the opening screen, for the next player.
  TheSplash().showSplash();
}

}  // namespace fh
