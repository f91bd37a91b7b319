#pragma once

#include "platform/base/Values.h"

#include <QString>

#include <vector>

namespace fh {

// A digital sound: the name the scripts call it by, its wave file, and whether its last play loops.
struct SoundRecord {
  QString SoundName;
  QString SoundPath;
  bool Looped = false;
};

// The one way the game makes sound. Digital sounds are short wave files loaded up front, each on its
// own device of SoundControls, and played by name; music is a MIDI file on the music device.
// Digital sound may fail, and then the game goes on without it; missing music means a missing CD.
class cSoundMgr {
 public:
  static constexpr i16 kMaxSounds = 20;

  cSoundMgr() = default;
  cSoundMgr(const cSoundMgr&) = delete;
  cSoundMgr& operator=(const cSoundMgr&) = delete;

  // The stereo's base pan, kept in the settings. Its start value is set at program start, before
  // Init opens any device; no sound operation reads it.
  i16 PanBase = 1;
  bool DigitalEnabled = false;
  // True while the music device is being switched. Nothing reads it.
  bool MidiChanging = false;

  bool IsLooped(i16 index) const;
  // Switches digital sound on, once at the start of a game.
  void Init();
  // Starts a piece of music from the "Audio" folder; a file that can't be played asks for the CD.
  void PlayMidi(const QString& file);
  void StopLocal(const QString& soundName);
  // Plays a loaded sound; false for an unknown name or with digital sound off. The pan isn't used:
  // there is no stereo positioning.
  bool PlayLocal(const QString& soundName, i16 pan, bool looped);
  // Opens the wave file under "Audio" on the next device, at most 20 in all.
  bool LoadSound(const QString& file, const QString& soundName);
  // Tells the player that digital sound is off, and turns it off.
  void DisableDigital();
  void UnloadSounds();
  // Stops everything, and closes the music device.
  void Disable();
  void Enable();

  i16 NumSounds() const { return m_numSounds; }
  const std::vector<SoundRecord>& Sounds() const { return m_sounds; }

 private:
  i16 FindSound(const QString& soundName) const;

  std::vector<SoundRecord> m_sounds;
  i16 m_numSounds = 0;
};

// The one sound manager, created on first use. Its last act, when the program ends however it ends,
// is UnloadSounds.
cSoundMgr& SoundMgr();

}  // namespace fh
