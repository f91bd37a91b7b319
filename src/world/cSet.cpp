#include "world/cSet.h"

#include "platform/ByteFile.h"
#include "platform/Failure.h"
#include "world/cShot.h"

namespace fh {

cSet::cSet() = default;
cSet::~cSet() = default;

void cSet::Save(ByteFile& file) const {
  setfile::putTag(file, sHeader);
  file.putText(sName, setfile::kTextLength);
  file.putInteger(nNumShots);
  file.putInteger(nCurrentShot);
  for (i16 i = 0; i < nNumShots; ++i) {
    if (i >= static_cast<qsizetype>(Shots.size()) || !Shots[i])
      throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("shot %1").arg(i));
    Shots[i]->Save(file);
  }
}

void cSet::Load(ByteFile& file, const SetReading& reading) {
  setfile::getTag(file, sHeader, QStringLiteral("Set"), QStringLiteral("Set header mismatch"));
  sName = setfile::getText(file, reading);
  nNumShots = file.getInteger();
  nCurrentShot = file.getInteger();
  // Each shot is stored before it is read, so a file that ends early leaves what it held.
  Shots.clear();
  Shots.reserve(setfile::roomFor(file, nNumShots, cShot::kEmptyRecordSize, "nNumShots"));
  for (i16 i = 0; i < nNumShots; ++i) {
    Shots.push_back(std::make_shared<cShot>());
    Shots.back()->Load(file, reading);
  }
  // Not yet: the sprites and this user's containers are loaded from the database here (LoadAssets),
  // so that a set read in the game needs the database open.
}

}  // namespace fh
