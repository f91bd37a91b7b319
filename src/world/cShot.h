#pragma once

#include "platform/Values.h"

#include <QString>

#include <memory>
#include <vector>

namespace fh {

class ByteFile;
class cHotSpot;

// One fixed view of the house with its neighbours and hotspots.
class cShot {
 public:
  cShot();
  ~cShot();

  QString sHeader = QStringLiteral("Shot");
  QString sName;
  QString ShotToLeft;
  QString ShotToRight;
  bool GoElapsedTime = false;
  i16 NumHotSpots = 0;
  std::vector<std::shared_ptr<cHotSpot>> HotSpots;  // NumHotSpots hotspots, index 0 first

  void Save(ByteFile& file) const;
  void Load(ByteFile& file);
};

}  // namespace fh
