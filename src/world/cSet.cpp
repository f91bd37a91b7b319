#include "world/cSet.h"

#include "world/cShot.h"

namespace fh {
cSet::cSet() = default;
cSet::~cSet() = default;
}  // namespace fh
