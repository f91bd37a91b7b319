#pragma once

#include "platform/desktop/MediaDevice.h"

namespace fh {

// The one music device. It belongs to the main window, which shows it as its MMControl1; the sound
// manager reaches it here. Created on first use and kept to the end of the program.
MediaDevice& MusicDevice();

}  // namespace fh
