#pragma once

#include "platform/base/Values.h"
#include "platform/desktop/MediaDevice.h"

#include <QObject>

#include <array>
#include <memory>

namespace fh {

// The holder of the digital sounds' devices, never shown. Device i plays the sound with index i of
// the sound manager. It is the game's one sound channel: one digital sound at a time, a looped sound
// that nothing but StopSound takes off the channel, and every sound rewound once it has ended.
class SoundControls : public QObject {
  Q_OBJECT
 public:
  static constexpr int kDeviceCount = 21;

  SoundControls();

  // Devices 0 to 20; another index is a Subscript out of range failure.
  MediaDevice& MMControl1(int index);

  // The sound that holds the channel, -1 for none. It starts at 0: nothing sets it before the first
  // play, so that play sends a "stop" to device 0.
  i16 CurrentSound = 0;
  bool InDoneHandler = false;

  void PlaySound(i16 index);
  void StopSound(i16 index);

  // The end of a play on a device. The code isn't looked at.
  void MMControl1_Done(int index, int notifyCode);

 private:
  std::array<std::unique_ptr<MediaDevice>, kDeviceCount> m_devices;
};

// The one SoundControls, created on first use and kept to the end of the program.
SoundControls& soundControls();

}  // namespace fh
