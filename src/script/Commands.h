#pragma once

#include "platform/base/Values.h"

#include <QLatin1StringView>

#include <array>

namespace fh {

class ScriptWords;

// The result of an `if` line whose condition is false: lines are skipped up to the next "endif".
constexpr i16 kSkipToEndif = 10;

// One operation per script command. Each gets the whole line's words (word 0 is the command) and
// gives the line's result, which is 0 but for `if` and `loadsound`.
i16 DoComputer(const ScriptWords& words);
i16 DoIf(const ScriptWords& words);
i16 DoAnimateSprite(const ScriptWords& words);
i16 DoStopSprite(const ScriptWords& words);
i16 DoSetContainer(const ScriptWords& words);
i16 DoToggleContainer(const ScriptWords& words);
i16 DoShowDialog(const ScriptWords& words);
i16 DoShowDialogString(const ScriptWords& words);
i16 DoShowInfoBox(const ScriptWords& words);
i16 DoShowContainer(const ScriptWords& words);
i16 DoShowVideo(const ScriptWords& words);
i16 DoStopVideo(const ScriptWords& words);
i16 DoGoto(const ScriptWords& words);
i16 DoPlayLocal(const ScriptWords& words);
i16 DoStopLocal(const ScriptWords& words);
i16 DoLoadSound(const ScriptWords& words);
i16 DoSetHotSpot(const ScriptWords& words);
i16 DoObject(const ScriptWords& words);
i16 DoStartSet(const ScriptWords& words);

// A command of the script language: its word, the fewest words (the command's own included) with
// which its line doesn't fail at a word that isn't there, and what runs.
struct ScriptCommand {
  QLatin1StringView word;
  int fewestWords;
  i16 (*run)(const ScriptWords& words);
};

// Every command. A line's word 0 is compared exactly with each, in this order, and the first that
// matches runs. The interpreter runs from this table and the world checker reads it.
extern const std::array<ScriptCommand, 19> kScriptCommands;

}  // namespace fh
