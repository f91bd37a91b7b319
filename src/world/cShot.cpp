#include "world/cShot.h"

#include "platform/files/ByteFile.h"
#include "world/cHotSpot.h"

namespace fh {

cShot::cShot() = default;
cShot::~cShot() = default;

void cShot::Save(ByteFile& file, const SetWriting& writing) const {
  setfile::putTag(file, sHeader);
  file.putText(sName, setfile::kTextLength);
  file.putText(ShotToLeft, setfile::kTextLength);
  file.putText(ShotToRight, setfile::kTextLength);
  file.putBoolean(GoElapsedTime);
  file.putInteger(NumHotSpots);
  setfile::saveRecords(file, NumHotSpots, HotSpots, writing, QStringLiteral("shot '%1'").arg(sName));
  if (writing.afterShot) writing.afterShot(*this);
}

void cShot::Load(ByteFile& file, const SetReading& reading) {
  setfile::getTag(file, sHeader, QStringLiteral("Shot"), QStringLiteral("Shot header mismatch"), reading);
  sName = setfile::getText(file, reading);
  ShotToLeft = setfile::getText(file, reading);
  ShotToRight = setfile::getText(file, reading);
  GoElapsedTime = file.getBoolean();
  NumHotSpots = file.getInteger();
  setfile::loadRecords(file, NumHotSpots, HotSpots, reading, "NumHotSpots");
}

}  // namespace fh
