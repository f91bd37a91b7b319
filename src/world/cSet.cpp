#include "world/cSet.h"

#include "platform/files/ByteFile.h"

namespace fh {

cSet::cSet() = default;
cSet::cSet(cSet&&) noexcept = default;
cSet& cSet::operator=(cSet&&) noexcept = default;

cSet::~cSet() {
  if (m_endLife) m_endLife(*this);
}

void cSet::Save(ByteFile& file, const SetWriting& writing) const {
  setfile::putTag(file, sHeader);
  file.putText(sName, setfile::kTextLength);
  file.putInteger(nNumShots);
  file.putInteger(nCurrentShot);
  setfile::saveRecords(file, nNumShots, Shots, writing, QStringLiteral("the set"));
}

void cSet::Load(ByteFile& file, const SetReading& reading) {
  setfile::getTag(file, sHeader, QStringLiteral("Set"), QStringLiteral("Set header mismatch"), reading);
  sName = setfile::getText(file, reading);
  nNumShots = file.getInteger();
  nCurrentShot = file.getInteger();
  setfile::loadRecords(file, nNumShots, Shots, reading, "nNumShots");
}

}  // namespace fh
