#pragma once

#include "platform/Values.h"
#include "world/SetFileFields.h"

#include <QString>

#include <memory>
#include <vector>

namespace fh {

class ByteFile;
class cHotSpot;

// One fixed view of the house with its neighbours and hotspots.
class cShot {
 public:
  // A shot record without hotspots.
  static constexpr qsizetype kEmptyRecordSize = 200;

  cShot();
  ~cShot();

  QString sHeader = QStringLiteral("Shot");
  QString sName;
  QString ShotToLeft;
  QString ShotToRight;
  bool GoElapsedTime = false;
  i16 NumHotSpots = 0;
  std::vector<std::shared_ptr<cHotSpot>> HotSpots;  // NumHotSpots hotspots, index 0 first

  // Appends the record and its hotspots at the file's position.
  void Save(ByteFile& file, const SetWriting& writing = {}) const;
  // Reads the record and its hotspots from the file's position.
  void Load(ByteFile& file, const SetReading& reading = {});
};

}  // namespace fh
