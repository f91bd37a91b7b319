#pragma once

#include "platform/Values.h"
#include "world/SetFileFields.h"

#include <QString>

#include <memory>
#include <vector>

namespace fh {

class ByteFile;
class cShot;

// The world: its shots, read from and written to a set file.
class cSet {
 public:
  // A set record without shots.
  static constexpr qsizetype kEmptyRecordSize = 71;

  cSet();
  ~cSet();

  i16 nCurrentShot = -1;
  QString sHeader = QStringLiteral("Set");
  QString sName;
  i16 nNumShots = 0;
  std::vector<std::shared_ptr<cShot>> Shots;  // nNumShots shots, index 0 first

  // Appends the record and its shots at the file's position.
  void Save(ByteFile& file, const SetWriting& writing = {}) const;
  // Reads the record and its shots from the file's position; then the assets would be loaded from
  // the database.
  void Load(ByteFile& file, const SetReading& reading = {});
};

}  // namespace fh
