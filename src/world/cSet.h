#pragma once

#include "platform/Values.h"

#include <QString>

#include <memory>
#include <vector>

namespace fh {

class ByteFile;
class cShot;

// The world: its shots, read from and written to a set file.
class cSet {
 public:
  cSet();
  ~cSet();

  i16 nCurrentShot = -1;
  QString sHeader = QStringLiteral("Set");
  QString sName;
  i16 nNumShots = 0;
  std::vector<std::shared_ptr<cShot>> Shots;  // nNumShots shots, index 0 first

  void Save(ByteFile& file) const;
  // Reads the set record and its shots; then the assets would be loaded from the database.
  void Load(ByteFile& file);
};

}  // namespace fh
