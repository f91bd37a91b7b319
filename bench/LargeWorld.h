#pragma once

#include "world/cSet.h"

#include <QByteArray>

namespace fh::bench {

// A world far larger than the bundled one: 2,000 shots of 19 hotspots, every text as long as a
// line may be (64 characters), three script lines a hotspot. Its first shot is the bundled
// world's front porch, so that it loads against the bundled database.
cSet LargeWorld();

// The bytes of a set as the game writes them to its file.
QByteArray SetFileBytes(const cSet& set);

}  // namespace fh::bench
