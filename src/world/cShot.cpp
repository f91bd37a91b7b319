#include "world/cShot.h"

#include "world/cHotSpot.h"

namespace fh {
cShot::cShot() = default;
cShot::~cShot() = default;
}  // namespace fh
