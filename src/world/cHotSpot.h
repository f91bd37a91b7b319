#pragma once

#include "platform/base/Values.h"
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
  Boolean16 Quiet = false;
  Boolean16 Enabled = true;
  QString Name;
  QString Rollover;
  i16 NumScriptLines = 0;
  QStringList ScriptLines;  // NumScriptLines lines, first line first

  // The pointer came in: the hotspot's cursor, the "LiteUp" sound when `playSound` and not quiet,
  // and its rollover line, which is exactly one command. A disabled hotspot does nothing.
  void LiteUp(bool playSound);
  // The pointer went out: the open view's pointer again, and a rollover that showed a text gives the
  // text line back to the last lasting message. A disabled hotspot does nothing.
  void LiteDown();
  // Clicked: the "Click" sound unless quiet, then the whole script. A disabled hotspot does nothing.
  void Fire();
  // The line at `index`; empty text at NumScriptLines, and for every index of a hotspot without
  // lines. Further out it is a bounds failure.
  QString Script(i16 index) const;
  // Stores the line below NumScriptLines; any other index is ignored without a word.
  void SetScriptLine(i16 index, const QString& line);
  // Makes room for `count` lines, keeping those that fit.
  void SetNumScriptLines(i16 count);

  // Appends the record at the file's position.
  void Save(ByteFile& file, const SetWriting& writing = {}) const;
  // Reads the record from the file's position.
  void Load(ByteFile& file, const SetReading& reading = {});
};

}  // namespace fh
