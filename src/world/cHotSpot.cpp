#include "world/cHotSpot.h"

#include "platform/files/ByteFile.h"

namespace fh {

void cHotSpot::Save(ByteFile& file, const SetWriting&) const {
  setfile::putTag(file, sHeader);
  // Height comes before width in the record.
  for (const i16 value : {Left, Top, Height, Width, Icon}) file.putInteger(value);
  file.putBoolean(Quiet);
  file.putBoolean(Enabled);
  file.putText(Name, setfile::kTextLength);
  file.putText(Rollover, setfile::kTextLength);
  file.putInteger(NumScriptLines);
  // A line the list doesn't hold is an empty one, as in the game's array of lines.
  for (i16 i = 0; i < NumScriptLines; ++i) file.putText(ScriptLines.value(i), setfile::kTextLength);
}

void cHotSpot::Load(ByteFile& file, const SetReading& reading) {
  setfile::getTag(file, sHeader, QStringLiteral("HotSpot"), QStringLiteral("HotSpot header mismatch"), reading);
  Left = file.getInteger();
  Top = file.getInteger();
  Height = file.getInteger();
  Width = file.getInteger();
  Icon = file.getInteger();
  Quiet = file.getBoolean();
  Enabled = file.getBoolean();
  Name = setfile::getText(file, reading);
  Rollover = setfile::getText(file, reading);
  NumScriptLines = file.getInteger();
  ScriptLines.clear();
  ScriptLines.reserve(setfile::roomFor(file, NumScriptLines, setfile::kTextLength, "NumScriptLines"));
  // A line that is all blanks reads as empty text and still counts.
  for (i16 i = 0; i < NumScriptLines; ++i) ScriptLines.append(setfile::getText(file, reading));
}

}  // namespace fh
