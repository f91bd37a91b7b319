#include "script/Commands.h"

#include "game/GameState.h"
#include "game/View.h"
#include "platform/base/Failure.h"
#include "script/ChoiceBoxes.h"
#include "script/ComputerCommand.h"
#include "script/ContainerState.h"
#include "script/GotoShot.h"
#include "script/ScriptWords.h"
#include "script/Television.h"
#include "sound/cSoundMgr.h"
#include "world/Condition.h"
#include "world/Dialogs.h"
#include "world/SetFile.h"
#include "world/cSet.h"
#include "world/cShot.h"

namespace fh {

// "computer" with a sub-word; alone it does nothing.
i16 DoComputer(const ScriptWords& words) {
  ComputerCommand(words.word(1));
  return 0;
}

// "if container keyword value": the three words joined by single blanks are the condition. A line
// of three words has an empty value; with fewer, reading word 3 fails.
i16 DoIf(const ScriptWords& words) {
  const QString condition = words.word(1) + u' ' + words.word(2) + u' ' + words.word(3);
  return TestCondition(condition) == kTrue ? 0 : kSkipToEndif;
}

// A sprite name the set doesn't know does nothing, here and in `stopsprite`, without a word.
i16 DoAnimateSprite(const ScriptWords& words) {
  if (const std::shared_ptr<cSprite> sprite = RequireCurrentSet().GetSpriteByName(words.word(1))) sprite->Go();
  return 0;
}

i16 DoStopSprite(const ScriptWords& words) {
  if (const std::shared_ptr<cSprite> sprite = RequireCurrentSet().GetSpriteByName(words.word(1))) sprite->Hide();
  return 0;
}

// "setcontainer name state [refresh]": a state that is no 16-bit number fails before anything changes.
i16 DoSetContainer(const ScriptWords& words) {
  const QString& name = words.word(1);
  const i16 state = CInt(words.word(2));
  SetContainer(name, state, words.word(3) == QLatin1StringView("refresh"));
  return 0;
}

// "togglecontainer name [anim]": with "anim" the backdrop stays as it is, so that an animation can
// show the change; only score and sprites are refreshed.
i16 DoToggleContainer(const ScriptWords& words) {
  const QString& name = words.word(1);
  ToggleContainer(name, words.word(2) != QLatin1StringView("anim"));
  return 0;
}

i16 DoShowDialog(const ScriptWords& words) {
  ShowDialog(words.word(1));
  return 0;
}

// Two words at most: the rest of the line is lost, and all of it is lower case by now.
i16 DoShowDialogString(const ScriptWords& words) {
  const QString& first = words.word(1);
  const QString& second = words.word(2);
  ShowDialogString(second.isEmpty() ? first : first + u' ' + second);
  return 0;
}

i16 DoShowInfoBox(const ScriptWords& words) {
  ShowInfoBox(words.word(1));
  return 0;
}

i16 DoShowContainer(const ScriptWords& words) {
  ShowContainer(words.word(1));
  return 0;
}

i16 DoShowVideo(const ScriptWords& words) {
  ShowVideo(words.word(1));
  return 0;
}

i16 DoStopVideo(const ScriptWords&) {
  view().StopVideo();
  return 0;
}

// "goto set file" loads a world from the database folder, "goto shot name" shows a shot. Only these
// two need the name; any other word 1 does nothing.
i16 DoGoto(const ScriptWords& words) {
  const QString& kind = words.word(1);
  if (kind == QLatin1StringView("set"))
    LoadSet(words.word(2));
  else if (kind == QLatin1StringView("shot"))
    GotoShot(words.word(2));
  return 0;
}

// The script doesn't wait for the sound, which plays from the middle of the stereo field.
i16 DoPlayLocal(const ScriptWords& words) {
  const QString& name = words.word(1);
  SoundMgr().PlayLocal(name, 0, words.word(2) == QLatin1StringView("looped"));
  return 0;
}

i16 DoStopLocal(const ScriptWords& words) {
  SoundMgr().StopLocal(words.word(1));
  return 0;
}

// "loadsound file name": the file lies in the audio folder. The line's result is -1 when it loaded.
i16 DoLoadSound(const ScriptWords& words) {
  const QString& file = words.word(1);
  return toBoolean16(SoundMgr().LoadSound(file, words.word(2)));
}

// "sethotspot name [active]": the word "active" must be there, anything else switches it off.
i16 DoSetHotSpot(const ScriptWords& words) {
  const QString& name = words.word(1);
  const bool active = words.word(2) == QLatin1StringView("active");
  RequireCurrentShot().SetHotspotState(name, active);
  return 0;
}

// Recognised, and does nothing by design: any words may follow.
i16 DoObject(const ScriptWords&) { return 0; }

// Names the set file to load; the game loads it once the start-up script is through.
i16 DoStartSet(const ScriptWords& words) {
  StartSetFile = words.word(1);
  return 0;
}

const std::array<ScriptCommand, 19> kScriptCommands{{
    {QLatin1StringView("computer"), 1, DoComputer},
    {QLatin1StringView("if"), 3, DoIf},
    {QLatin1StringView("animatesprite"), 1, DoAnimateSprite},
    {QLatin1StringView("stopsprite"), 1, DoStopSprite},
    {QLatin1StringView("setcontainer"), 3, DoSetContainer},
    {QLatin1StringView("togglecontainer"), 2, DoToggleContainer},
    {QLatin1StringView("showdialog"), 1, DoShowDialog},
    {QLatin1StringView("showdialogstring"), 2, DoShowDialogString},
    {QLatin1StringView("showinfobox"), 1, DoShowInfoBox},
    {QLatin1StringView("showcontainer"), 1, DoShowContainer},
    {QLatin1StringView("showvideo"), 1, DoShowVideo},
    {QLatin1StringView("stopvideo"), 1, DoStopVideo},
    {QLatin1StringView("goto"), 1, DoGoto},
    {QLatin1StringView("playlocal"), 2, DoPlayLocal},
    {QLatin1StringView("stoplocal"), 1, DoStopLocal},
    {QLatin1StringView("loadsound"), 2, DoLoadSound},
    {QLatin1StringView("sethotspot"), 2, DoSetHotSpot},
    {QLatin1StringView("object"), 1, DoObject},
    {QLatin1StringView("startset"), 1, DoStartSet},
}};

}  // namespace fh
