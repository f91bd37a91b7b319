#include "world/cHotSpot.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Failure.h"
#include "script/Interpreter.h"
#include "sound/cSoundMgr.h"
#include "world/Dialogs.h"

// What a hotspot does in play: light up under the pointer, go out, and fire when clicked.
namespace fh {

namespace {

// Above 100: the open view's pointer.
constexpr i16 kOpenPointer = 103;

}  // namespace

void cHotSpot::LiteUp(bool playSound) {
  if (!Enabled) return;
  view().SetCursor(Icon);
  if (playSound && !Quiet) SoundMgr().PlayLocal(QStringLiteral("LiteUp"), 0, false);
  // One line, not a script: a rollover can't hold an `if` block.
  if (!Rollover.isEmpty()) RunScriptLine(Rollover);
}

// Only a rollover that put a text in the line gives it back; any other kind stays done.
void cHotSpot::LiteDown() {
  if (!Enabled) return;
  view().SetCursor(kOpenPointer);
  if (Rollover.left(10).toLower() == QLatin1StringView("showdialog")) ShowDialogString(QStringLiteral("last"));
}

void cHotSpot::Fire() {
  if (!Enabled) return;
  if (!Quiet) SoundMgr().PlayLocal(QStringLiteral("Click"), 0, false);
  QString script;
  for (i16 i = 0; i < NumScriptLines; ++i) script += Script(i) + QStringLiteral("\r\n");
  RunScript(script);
}

// The lines are held as an array of NumScriptLines + 1 entries, the last one always empty.
QString cHotSpot::Script(i16 index) const {
  if (NumScriptLines == 0) return {};
  if (index < 0 || index > NumScriptLines)
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("script line %1 of hotspot '%2'").arg(index).arg(Name));
  return ScriptLines.value(index);
}

void cHotSpot::SetScriptLine(i16 index, const QString& line) {
  if (index < 0 || index >= NumScriptLines) return;
  while (ScriptLines.size() <= index) ScriptLines.append(QString());
  ScriptLines[index] = line;
}

void cHotSpot::SetNumScriptLines(i16 count) {
  if (count < 0) throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("%1 script lines").arg(count));
  ScriptLines.resize(count);
  NumScriptLines = count;
}

}  // namespace fh
