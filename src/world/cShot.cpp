#include "world/cShot.h"

#include "platform/ByteFile.h"
#include "platform/Failure.h"
#include "world/cHotSpot.h"

namespace fh {

cShot::cShot() = default;
cShot::~cShot() = default;

void cShot::Save(ByteFile& file) const {
  setfile::putTag(file, sHeader);
  file.putText(sName, setfile::kTextLength);
  file.putText(ShotToLeft, setfile::kTextLength);
  file.putText(ShotToRight, setfile::kTextLength);
  file.putBoolean(GoElapsedTime);
  file.putInteger(NumHotSpots);
  for (i16 i = 0; i < NumHotSpots; ++i) {
    if (i >= static_cast<qsizetype>(HotSpots.size()) || !HotSpots[i])
      throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("hotspot %1 of shot '%2'").arg(i).arg(sName));
    HotSpots[i]->Save(file);
  }
  // Not yet: every saved shot gets its row in the database table Shots ("SELECT * FROM Shots WHERE
  // Name='" + sName + "'", edited or added, with only Name filled in). That needs the game database.
}

void cShot::Load(ByteFile& file, const SetReading& reading) {
  setfile::getTag(file, sHeader, QStringLiteral("Shot"), QStringLiteral("Shot header mismatch"));
  sName = setfile::getText(file, reading);
  ShotToLeft = setfile::getText(file, reading);
  ShotToRight = setfile::getText(file, reading);
  GoElapsedTime = file.getBoolean();
  NumHotSpots = file.getInteger();
  // Each hotspot is stored before it is read, so a file that ends early leaves what it held.
  HotSpots.clear();
  HotSpots.reserve(setfile::roomFor(file, NumHotSpots, cHotSpot::kEmptyRecordSize, "NumHotSpots"));
  for (i16 i = 0; i < NumHotSpots; ++i) {
    HotSpots.push_back(std::make_shared<cHotSpot>());
    HotSpots.back()->Load(file, reading);
  }
}

}  // namespace fh
