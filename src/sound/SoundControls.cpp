#include "sound/SoundControls.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "sound/cSoundMgr.h"

namespace fh {

SoundControls::SoundControls() {
  for (int i = 0; i < kDeviceCount; ++i) {
    m_devices[static_cast<std::size_t>(i)] = std::make_unique<MediaDevice>(i, this);
    connect(m_devices[static_cast<std::size_t>(i)].get(), &MediaDevice::Done, this, [this](int index, int notifyCode) {
      guarded("SoundControls Done", [this, index, notifyCode] { MMControl1_Done(index, notifyCode); });
    });
  }
}

MediaDevice& SoundControls::MMControl1(int index) {
  if (index < 0 || index >= kDeviceCount) throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("MMControl1(%1)").arg(index));
  return *m_devices[static_cast<std::size_t>(index)];
}

void SoundControls::PlaySound(i16 index) {
  // The Done handler plays a looped sound that holds the channel again each time it ends; the device
  // itself carries it over that end, so that the repeat is seamless.
  MMControl1(index).Looping = SoundMgr().IsLooped(index);
  if (CurrentSound == -1) {
    MMControl1(index).Command(QStringLiteral("play"));
    CurrentSound = index;
    return;
  }
  // A looped sound keeps the channel: the new sound is dropped.
  if (SoundMgr().IsLooped(CurrentSound)) return;
  MMControl1(CurrentSound).Command(QStringLiteral("stop"));
  MMControl1(index).Command(QStringLiteral("play"));
  CurrentSound = index;
}

void SoundControls::StopSound(i16 index) {
  MMControl1(index).Command(QStringLiteral("stop"));
  MMControl1(index).Command(QStringLiteral("prev"));
  // Whichever sound held the channel: one that plays on now has no owner and won't loop again.
  CurrentSound = -1;
}

void SoundControls::MMControl1_Done(int index, int) {
  if (MMControl1(index).Mode() != kModeStopped || InDoneHandler) return;
  // The commands below end plays of their own; their reports must not run this again.
  InDoneHandler = true;
  MMControl1(index).Command(QStringLiteral("prev"));
  if (CurrentSound == index && SoundMgr().IsLooped(static_cast<i16>(index))) MMControl1(index).Command(QStringLiteral("play"));
  InDoneHandler = false;
}

SoundControls& soundControls() {
  // Never destroyed: the sound manager unloads its sounds at the very end, after static objects go.
  static SoundControls* controls = new SoundControls;
  return *controls;
}

}  // namespace fh
