#include "sound/cSoundMgr.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "platform/desktop/CdPrompt.h"
#include "platform/files/FileNames.h"
#include "sound/MusicDevice.h"
#include "sound/SoundControls.h"

namespace fh {

namespace {

const QString kMaximumSoundsText = QStringLiteral("Maximum number of sounds reached.");
// Two blanks before "Digital", as the game has always said it.
const QString kDigitalDisabledText = QStringLiteral(
    "Sound system is being used by another application or is not present.  Digital sounds will be disabled for this session.");

QString audioFolder() { return ResourcePath + QStringLiteral("Audio\\"); }
// A name that leaves the audio folder fails as a missing file would.
QString audioPath(const QString& file) { return fileInFolder(audioFolder(), file); }

}  // namespace

bool cSoundMgr::IsLooped(i16 index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= m_sounds.size())
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("Sounds(%1)").arg(index));
  return m_sounds[static_cast<std::size_t>(index)].Looped;
}

void cSoundMgr::Init() { Enable(); }

void cSoundMgr::PlayMidi(const QString& file) {
  MediaDevice& music = MusicDevice();
  MidiChanging = true;
  // Each step that fails asks for the CD, naming the piece, and with OK runs again.
  const QString piece = audioFolder() + file;
  RetryWithCdPrompt([&] { music.Command(QStringLiteral("stop")); }, piece);
  RetryWithCdPrompt([&] { music.Command(QStringLiteral("close")); }, piece);
  DoEvents();
  RetryWithCdPrompt([&] { music.FileName = audioPath(file); }, piece);
  DoEvents();
  RetryWithCdPrompt([&] { music.Command(QStringLiteral("open")); }, piece);
  RetryWithCdPrompt([&] { music.Command(QStringLiteral("play")); }, piece);
  MidiChanging = false;
}

void cSoundMgr::StopLocal(const QString& soundName) {
  if (!DigitalEnabled) return;
  try {
    const i16 index = FindSound(soundName);
    if (index >= 0) soundControls().StopSound(index);
  } catch (const RuntimeFailure&) {
    DisableDigital();
  }
}

bool cSoundMgr::PlayLocal(const QString& soundName, i16, bool looped) {
  if (!DigitalEnabled) return false;
  try {
    const i16 index = FindSound(soundName);
    if (index == -1) return false;
    m_sounds[static_cast<std::size_t>(index)].Looped = looped;
    soundControls().PlaySound(index);
    return true;
  } catch (const RuntimeFailure&) {
    DisableDigital();
    return false;
  }
}

// With digital sound off every name is sound 0, without looking.
i16 cSoundMgr::FindSound(const QString& soundName) const {
  if (!DigitalEnabled) return 0;
  const QString wanted = soundName.toLower();
  for (i16 i = 0; i < m_numSounds; ++i)
    if (m_sounds[static_cast<std::size_t>(i)].SoundName.toLower() == wanted) return i;
  return -1;
}

bool cSoundMgr::LoadSound(const QString& file, const QString& soundName) {
  if (m_numSounds == kMaxSounds) {
    MsgBox(kMaximumSoundsText);
    return false;
  }
  if (!DigitalEnabled) return false;
  try {
    const QString path = audioFolder() + file;
    // One entry more than needed, keeping the old ones; after UnloadSounds this shrinks the list.
    m_sounds.resize(static_cast<std::size_t>(m_numSounds) + 2);
    SoundRecord& sound = m_sounds[static_cast<std::size_t>(m_numSounds)];
    sound.SoundName = soundName;
    sound.SoundPath = path;

    MediaDevice& device = soundControls().MMControl1(m_numSounds);
    device.Notify = true;
    device.Wait = false;
    device.Shareable = false;
    device.DeviceType = QStringLiteral("WaveAudio");
    device.FileName = audioPath(file);
    device.Command(QStringLiteral("Open"));
    ++m_numSounds;
    return true;
  } catch (const RuntimeFailure&) {
    DisableDigital();
    return false;
  }
}

// Failures in here are passed over: the first one leaves the rest of Disable undone.
void cSoundMgr::DisableDigital() {
  MsgBox(kDigitalDisabledText);
  try {
    Disable();
  } catch (const RuntimeFailure&) {
  }
}

// Sounds loaded before stay on their devices, ready for Enable.
void cSoundMgr::Disable() {
  if (DigitalEnabled) {
    for (i16 i = 0; i < m_numSounds; ++i) soundControls().StopSound(i);
    DigitalEnabled = false;
  }
  SoundMgr().MidiChanging = true;
  MusicDevice().Command(QStringLiteral("stop"));
  MusicDevice().Command(QStringLiteral("close"));
  SoundMgr().MidiChanging = false;
}

// Nothing here can fail: the devices aren't touched.
void cSoundMgr::Enable() {
  if (!DigitalEnabled) DigitalEnabled = true;
}

void cSoundMgr::UnloadSounds() {
  Disable();
  // Closes device NumSounds, not i, each time: the devices that hold sounds stay open, and the next
  // LoadSound opens such a device again. The game has always worked this way; keep it.
  for (i16 i = 0; i < m_numSounds; ++i) {
    soundControls().StopSound(i);
    soundControls().MMControl1(m_numSounds).Command(QStringLiteral("close"));
  }
  m_numSounds = 0;
}

cSoundMgr& SoundMgr() {
  // Never destroyed, like the devices it closes: its last act runs before the process ends, not
  // among the destructors of static objects, where the devices and the application may be gone.
  static cSoundMgr* const instance = [] {
    auto* manager = new cSoundMgr;
    atProgramEnd([manager] { manager->UnloadSounds(); });
    return manager;
  }();
  return *instance;
}

}  // namespace fh
