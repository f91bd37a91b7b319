#include "startup/Main.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "platform/files/FileNames.h"
#include "platform/files/Settings.h"
#include "sound/cSoundMgr.h"
#include "startup/Splash.h"
#include "startup/frmSetup.h"

namespace fh {

void Main() {
  InitProgram();
  while (!ResourcesPresent()) {
    if (MsgBox(QStringLiteral("Unable to locate resource directory. Please re-install the game and try again."),
               Buttons::OkCancel) == Answer::Cancel)
      EndProgram();
  }
  TheSplash().showSplash();
}

void InitProgram() {
  QString folder = programFolder();
  if (!folder.endsWith(u'\\')) folder += u'\\';
  DatabasePath = folder + QStringLiteral("Database\\");

  MasterPassword = QStringLiteral("oakmeadow");

  ResourcePath = GetSetting(QStringLiteral("Fernhollow"), QStringLiteral("Settings"), QStringLiteral("ResourcePath"), {}).toUpper();
  while (!ResourcesPresent()) ui().showModal(setupForm());

  // No guard here: a PanBase that is no 16-bit number stops the program.
  SoundMgr().PanBase = CInt(GetSetting(QStringLiteral("Fernhollow"), QStringLiteral("Settings"), QStringLiteral("PanBase"), QStringLiteral("1")));
}

bool ResourcesPresent() {
  // An empty ResourcePath looks in the working directory, which is how a first run finds the tree
  // when the game is started inside it.
  return !firstMatchingFile(ResourcePath + QStringLiteral("Graphics\\*.*")).isEmpty();
}

}  // namespace fh
