#include "mainview/ShotView.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/desktop/PictureBox.h"
#include "sound/cSoundMgr.h"

// Films are switched off in this game. The operations stay, and their callers are written for a
// PlayVideo that fails: the television's caption is all the player gets, and the rest of the script
// that asked for the film is lost under the mouse's net.
namespace fh {

void ShotView::PlayVideo(i16, i16, const QString& fileName) {
  throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("film '%1': film playback is switched off").arg(fileName));
  // Were films ever switched on, they would go here: digital sound off while a film runs, then
  // VideoRunning set for one yield to the event loop.
}

// Every change of shot comes through here, which is what turns a sound manager that was switched off
// back on.
void ShotView::StopVideo() {
  SoundMgr().Enable();
  m_videoRunning = false;
}

// What a film's device would report at its end. Nothing reports it while films are off.
void ShotView::VideoStatusChanged(const QString& status) {
  if (status != QLatin1StringView("stopped") || m_videoRunning) return;
  VideoSys->hide();
  SoundMgr().Enable();
}

}  // namespace fh
