#include "script/Commands.h"

#include "script/Condition.h"
#include "script/ScriptWords.h"
#include "startup/Globals.h"

namespace fh {

// Not yet: the computer's screens (open, close, print) by the sub-word in word 1.
i16 DoComputer(const ScriptWords&) { return 0; }

// "if container keyword value": the three words joined by single blanks are the condition. A line
// of three words has an empty value; with fewer, reading word 3 fails.
i16 DoIf(const ScriptWords& words) {
  const QString condition = words.word(1) + u' ' + words.word(2) + u' ' + words.word(3);
  return TestCondition(condition) == kTrue ? 0 : kSkipToEndif;
}

// Not yet: starts the sprite named in word 1.
i16 DoAnimateSprite(const ScriptWords&) { return 0; }

// Not yet: hides and halts the sprite named in word 1.
i16 DoStopSprite(const ScriptWords&) { return 0; }

// Not yet: sets a container to a state, refreshing the shot on "refresh".
i16 DoSetContainer(const ScriptWords&) { return 0; }

// Not yet: toggles a container, refreshing without the backdrop on "anim".
i16 DoToggleContainer(const ScriptWords&) { return 0; }

// Not yet: shows a text of the Dialogs table, or clears the text window for an empty name.
i16 DoShowDialog(const ScriptWords&) { return 0; }

// Not yet: shows words 1 and 2 as a free text, or the last one for "last".
i16 DoShowDialogString(const ScriptWords&) { return 0; }

// Not yet: opens the info box named in word 1, modally.
i16 DoShowInfoBox(const ScriptWords&) { return 0; }

// Not yet: opens the object selection of the container named in word 1, modally.
i16 DoShowContainer(const ScriptWords&) { return 0; }

// Not yet: plays a video, or steps the television with "next" and "previous".
i16 DoShowVideo(const ScriptWords&) { return 0; }

// Not yet: stops the video in the main view.
i16 DoStopVideo(const ScriptWords&) { return 0; }

// Not yet: "goto set file" loads a world, "goto shot name" shows a shot.
i16 DoGoto(const ScriptWords&) { return 0; }

// Not yet: plays a loaded sound, looped on "looped".
i16 DoPlayLocal(const ScriptWords&) { return 0; }

// Not yet: stops a loaded sound.
i16 DoStopLocal(const ScriptWords&) { return 0; }

// Not yet: loads a sound file from the audio folder under a name; the sound manager's answer is the result.
i16 DoLoadSound(const ScriptWords&) { return 0; }

// Not yet: switches a hotspot of the current shot on ("active") or off.
i16 DoSetHotSpot(const ScriptWords&) { return 0; }

// Recognised, and does nothing by design: any words may follow.
i16 DoObject(const ScriptWords&) { return 0; }

// Names the set file to load; the game loads it once the start-up script is through.
i16 DoStartSet(const ScriptWords& words) {
  StartSetFile = words.word(1);
  return 0;
}

}  // namespace fh
