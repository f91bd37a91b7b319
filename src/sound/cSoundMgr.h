#pragma once

#include "platform/Values.h"

namespace fh {

// The sound manager. Its stereo base is set from the settings at start, before Init opens any device.
class cSoundMgr {
 public:
  i16 PanBase = 0;
};

}  // namespace fh
