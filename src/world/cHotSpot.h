#pragma once

#include "platform/Values.h"

#include <QString>
#include <QStringList>

namespace fh {

class ByteFile;

// A clickable rectangle of a shot with its cursor, its flags and its scripts.
class cHotSpot {
 public:
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

  void Save(ByteFile& file) const;
  void Load(ByteFile& file);
};

}  // namespace fh
