#include "script/GotoShot.h"

#include "game/GameState.h"
#include "world/cSet.h"

namespace fh {

void GotoShot(const QString& name) {
  // The walk doesn't stop at a match: a world with two shots of one name shows both, and the last
  // stays up. Worlds may rely on that, so it must stay.
  cSet& set = RequireCurrentSet();
  for (i16 index = 0; index < set.nNumShots; index = addI16(index, 1))
    if (set.Shot(index)->sName.toLower() == name) set.ShowShot(index);
}

}  // namespace fh
