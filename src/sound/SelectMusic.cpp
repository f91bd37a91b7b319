#include "sound/SelectMusic.h"

namespace fh {

// Not yet: the music dialog arrives with its own issue; until then the stereo has nothing to open.
QWidget* SelectMusicForm() { return nullptr; }

}  // namespace fh
