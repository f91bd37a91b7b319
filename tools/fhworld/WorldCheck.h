#pragma once

#include "NeededFiles.h"
#include "Problems.h"

#include <QString>

namespace fh::fhworld {

// How big a world is.
struct WorldSummary {
  int shots = 0;
  int hotSpots = 0;
  int containers = 0;
  int objects = 0;
  int sprites = 0;
  int sounds = 0;
  int questions = 0;
};

struct CheckResult {
  Problems problems;
  WorldSummary summary;
  NeededFiles files;  // every picture and sound the world needs
};

// Checks the world in `databaseFolder` (the game database and the set file that its start-up
// script names) and, unless `resourceFolder` is empty, that every file it needs is in the resource
// tree. Everything broken is a problem; nothing is changed. A database that can't be opened at all
// is a RuntimeFailure.
CheckResult checkWorld(const QString& databaseFolder, const QString& resourceFolder);

}  // namespace fh::fhworld
