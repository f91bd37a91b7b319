#include "mainview/ShotView.h"

#include "game/GameState.h"
#include "game/Screens.h"
#include "platform/base/Ui.h"
#include "platform/desktop/PictureBox.h"
#include "script/ComputerCommand.h"
#include "script/Interpreter.h"
#include "sound/cSoundMgr.h"
#include "world/cShot.h"

// What the five picture buttons of the frame do when they are released. There is no net under them:
// a script line that fails here is a failure of the program.
namespace fh {

namespace {

const QString kComputerShot = QStringLiteral("Computer");

// The click sounds from the side the player turns to.
void turnTo(const QString& neighbour, i16 pan) {
  if (GameMode != 1 || neighbour.isEmpty()) return;
  SoundMgr().PlayLocal(QStringLiteral("Click"), pan, false);
  RunScriptLine(QStringLiteral("Goto Shot ") + neighbour);
}

}  // namespace

void ShotView::btnLeft_Action() { turnTo(RequireCurrentShot().ShotToLeft, 2000); }

void ShotView::btnRight_Action() { turnTo(RequireCurrentShot().ShotToRight, -2000); }

// Goes to the computer and back. The computer is the shot named exactly "Computer"; the way back
// is remembered only when the button took the player there. Unlike the arrows it works in edit mode.
void ShotView::btnComputer_Action() {
  cShot& shot = RequireCurrentShot();
  if (shot.sName != kComputerShot) {
    m_shotBeforeComputer = shot.sName;
    SoundMgr().PlayLocal(QStringLiteral("Click"), 0, false);
    RunScriptLine(QStringLiteral("Goto Shot Computer"));
    RunScriptLine(QStringLiteral("Computer HowAmIDoing"));
    return;
  }
  if (m_shotBeforeComputer.isEmpty()) return;
  SoundMgr().PlayLocal(QStringLiteral("Click"), 0, false);
  CloseComputer();
  RunScriptLine(QStringLiteral("Goto Shot ") + m_shotBeforeComputer);
}

// The music dialog lies over the house, never over the computer.
void ShotView::btnStereo_Action() {
  if (ActiveComputerScreen != 0) return;
  ShowMusicDialog(pictureOnScreen(), picture());
}

void ShotView::btnExit_Action() {
  if (ActiveComputerScreen != 0) {
    MsgBox(QStringLiteral("You must exit the computer before you can exit the game..."));
    return;
  }
  EndSession();
}

}  // namespace fh
