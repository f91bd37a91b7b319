#include "sound/MusicDevice.h"

namespace fh {

MediaDevice& MusicDevice() {
  // Never destroyed: the sound manager's last act, at the very end, stops and closes it.
  static MediaDevice* device = [] {
    auto* music = new MediaDevice;
    // The main window prepares it for music again at its start; until then it is a sequencer too.
    music->DeviceType = QStringLiteral("Sequencer");
    return music;
  }();
  return *device;
}

}  // namespace fh
