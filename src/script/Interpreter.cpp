#include "script/Interpreter.h"

#include "platform/base/Ui.h"
#include "script/Commands.h"
#include "script/ScriptWords.h"

#include <algorithm>

namespace fh {

namespace {

const QString kCarriageReturn(QChar(13));

}  // namespace

void RunScript(const QString& text) {
  // Local to this call: a modal screen opened by a line may run other scripts meanwhile.
  bool skipping = false;
  // Text positions are 16-bit and count from 1: a script of 32767 characters or more overflows.
  i16 position = 1;
  for (;;) {
    const int carriageReturn = InStr(position, text, kCarriageReturn);
    const i16 lineEnd = toI16(carriageReturn > 0 ? carriageReturn : text.size() + 1);
    const QString line = Mid(text, position, std::max(0, lineEnd - position));
    if (!line.isEmpty()) {
      if (skipping) {
        // A false `if` skips to the first "endif", whoever's it is: blocks do not nest, and the
        // skip doesn't count `if` lines. Worlds are written against this, so it must stay. The
        // "endif" must be the whole line; a skipped line isn't even split into words.
        if (line.toLower() == QLatin1StringView("endif")) skipping = false;
      } else if (RunScriptLine(line) == kSkipToEndif) {
        skipping = true;
      }
    }
    if (carriageReturn == 0) break;
    // Two characters on: the line feed is stepped over without being looked at, so a carriage
    // return alone costs the next line its first character.
    position = addI16(lineEnd, 2);
  }
  if (skipping) MsgBox(QStringLiteral("If block without EndIf"));
}

i16 RunScriptLine(const QString& line) {
  const ScriptWords words(line);
  const QString& command = words.word(0);
  // Unknown words are ignored without a word; so is the "endif" behind a true `if`.
  for (const ScriptCommand& entry : kScriptCommands)
    if (command == entry.word) return entry.run(words);
  return 0;
}

}  // namespace fh
