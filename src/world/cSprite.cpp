#include "world/cSprite.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Failure.h"
#include "platform/desktop/CdPrompt.h"
#include "platform/desktop/PictureClip.h"
#include "platform/desktop/Pictures.h"
#include "platform/desktop/Timer.h"
#include "platform/files/FileNames.h"
#include "sound/cSoundMgr.h"

namespace fh {

PictureClip& cSprite::cels() const { return view().spriteCels(SpriteIndex); }

Timer& cSprite::timer() const { return view().spriteTimer(SpriteIndex); }

// Called for every sprite of the shot on every refresh, so a strip is only loaded when it changes.
void cSprite::SetCels(const QString& celSource, const QString& sound) {
  if (celSource == m_celSource) return;
  // Whichever step fails, the prompt names the strip that was being put in.
  const QString folder = ResourcePath + QStringLiteral("Graphics\\");
  const QString strip = folder + celSource;
  RetryWithCdPrompt([this] { Halt(); }, strip);
  RetryWithCdPrompt([this, &folder, &celSource] {
    cels().Picture = QPixmap::fromImage(LoadPicture(fileInFolder(folder, celSource)));
  }, strip);
  m_celSource = celSource;
  RetryWithCdPrompt([this] {
    PictureClip& clip = cels();
    clip.Rows = 1;
    clip.Cols = NumFrames;
  }, strip);
  m_sound = sound;
  Rewind();
}

void cSprite::Go() {
  FrameStep = Backwards ? -1 : 1;
  Rewind();
  Timer& frames = timer();
  frames.setEnabled(true);
  frames.setInterval(FrameDelay);
  if (!m_sound.isEmpty()) SoundMgr().PlayLocal(m_sound, SoundPan(), true);
}

void cSprite::Halt() {
  FrameStep = 0;
  timer().setEnabled(false);
  if (!m_sound.isEmpty()) SoundMgr().StopLocal(m_sound);
}

void cSprite::Hide() { Halt(); }

void cSprite::Refresh() {
  Render();
  if (Loop) Go();
}

// Cels are opaque rectangles, copied as they are.
void cSprite::Render() { view().paintOnPicture(cels().GraphicCell(m_currentFrame), X, Y); }

void cSprite::SetFrame(i16 frame) { m_currentFrame = frame; }

void cSprite::NextFrame() {
  Render();
  m_currentFrame = addI16(m_currentFrame, FrameStep);
  const bool ranOut = m_currentFrame == NumFrames || m_currentFrame == -1;
  if (!ranOut) return;
  if (!Loop) Halt();
  Rewind();
}

// A run starts at its first cel, and a halted sprite rests on its last one: a one-shot animation
// holds its end picture, and a sprite that has just been given a strip shows its end state until it
// is started. Still sprites get their resting picture from this; it must stay so.
void cSprite::Rewind() {
  const bool running = FrameStep != 0;
  const bool atLastCel = running == Backwards;
  m_currentFrame = atLastCel ? subI16(NumFrames, 1) : 0;
}

i16 cSprite::SoundPan() const {
  const int width = view().pictureWidth();
  if (width == 0) throw RuntimeFailure(Failure::DivisionByZero, QStringLiteral("sound pan of sprite %1").arg(Name));
  return CInt(static_cast<double>(X) / width * -10000 + 5000);
}

}  // namespace fh
