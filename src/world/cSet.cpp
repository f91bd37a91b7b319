#include "world/cSet.h"

#include "platform/ByteFile.h"
#include "world/cShot.h"

namespace fh {

cSet::cSet() = default;
cSet::~cSet() = default;

void cSet::Save(ByteFile& file, const SetWriting& writing) const {
  setfile::putTag(file, sHeader);
  file.putText(sName, setfile::kTextLength);
  file.putInteger(nNumShots);
  file.putInteger(nCurrentShot);
  setfile::saveRecords(file, nNumShots, Shots, writing, QStringLiteral("the set"));
}

void cSet::Load(ByteFile& file, const SetReading& reading) {
  setfile::getTag(file, sHeader, QStringLiteral("Set"), QStringLiteral("Set header mismatch"));
  sName = setfile::getText(file, reading);
  nNumShots = file.getInteger();
  nCurrentShot = file.getInteger();
  setfile::loadRecords(file, nNumShots, Shots, reading, "nNumShots");
  // Not yet: the sprites and this user's containers are loaded from the database here (LoadAssets),
  // so that a set read in the game needs the database open.
}

}  // namespace fh
