#pragma once

#include "platform/Values.h"
#include "world/SetFileFields.h"

#include <QString>
#include <QStringList>

namespace fh {

class ByteFile;

// A clickable rectangle of a shot with its cursor, its flags and its scripts.
class cHotSpot {
 public:
  // A hotspot record without script lines; each line adds a fixed text.
  static constexpr qsizetype kEmptyRecordSize = 151;

  QString sHeader = QStringLiteral("HotSpot");
  i16 Left = 0;
  i16 Top = 0;
  i16 Height = 0;
  i16 Width = 0;
  i16 Icon = 5;
  bool Quiet = false;
  bool Enabled = true;
  QString Name;
  QString Rollover;
  i16 NumScriptLines = 0;
  QStringList ScriptLines;  // NumScriptLines lines, first line first

  // Appends the record at the file's position.
  void Save(ByteFile& file, const SetWriting& writing = {}) const;
  // Reads the record from the file's position.
  void Load(ByteFile& file, const SetReading& reading = {});
};

}  // namespace fh
