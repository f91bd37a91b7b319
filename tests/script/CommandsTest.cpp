#include "LiveWorld.h"
#include "SoundFiles.h"

#include "platform/base/Failure.h"
#include "platform/desktop/AudioOutput.h"
#include "script/Interpreter.h"
#include "sound/SoundControls.h"
#include "sound/cSoundMgr.h"
#include "world/SetFile.h"
#include "world/cSet.h"

namespace fh::test {
namespace {

// The live world with a set of its own: Porch (hotspots FrontDoor and Lamp), Attic, Hall, and a
// second Attic written in capitals. Neither Attic has a backdrop, so each showing of one says so.
class Commands : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    ActiveComputerScreen = 0;
    auto porch = makeShot("Porch", {makeHotSpot("FrontDoor"), makeHotSpot("Lamp")});
    data.write(QStringLiteral("Commands.set"), savedBytes(makeSet("Commands", {porch, makeShot("Attic"), makeShot("Hall"), makeShot("ATTIC")})));
    LoadSet(QStringLiteral("Commands.set"));
  }
  void TearDown() override {
    ActiveComputerScreen = 0;
    LiveWorld::TearDown();
  }

  static i16 run(const char* line) { return RunScriptLine(QString::fromLatin1(line)); }
  static Failure failureOf(const char* line) {
    try { run(line); } catch (const RuntimeFailure& failure) { return failure.kind(); }
    ADD_FAILURE() << line << " ran through";
    return {};
  }
  std::pair<int, int> tap() {
    return {CurrentSet->GetContainer(QStringLiteral("tap")).CurrentState, stored(QStringLiteral("CurrentState"), QStringLiteral("Tap"))};
  }
  bool enabled(i16 hotSpot) { return static_cast<bool>(CurrentShot->HotSpot(hotSpot)->Enabled); }
  QStringList missingBackdrops() { return messages().filter(QStringLiteral("backdrops")); }
};

using ArgumentRules = Commands;
using ContainerCommands = Commands;
using GotoCommands = Commands;
using DeviceCommands = Commands;

TEST_F(ArgumentRules, TooFewWordsFailAtTheFirstWordThatIsNotThere) {
  for (const char* line : {"togglecontainer", "showdialogstring", "playlocal", "loadsound", "sethotspot"}) {
    SCOPED_TRACE(line);
    EXPECT_EQ(failureOf(line), Failure::SubscriptOutOfRange);
  }
  EXPECT_EQ(tap(), std::make_pair(1, 1));
}

TEST_F(ArgumentRules, ExtraWordsAreIgnoredAndALeftOutLastWordReadsEmpty) {
  run("setcontainer tap 0 refresh and more");
  EXPECT_EQ(tap(), std::make_pair(0, 0));
  const std::pair<const char*, const char*> dialogs[] = {
      {"showdialogstring Hello", "hello"}, {"showdialogstring The TAP drips", "the tap"}, {"showdialog hello", "Hello there."},
      {"showdialog  hello", ""}};
  for (const auto& [line, dialog] : dialogs) {
    run(line);
    EXPECT_EQ(text(), QLatin1String(dialog)) << line;
  }
  run("goto shot");
  run("goto  shot hall");
  EXPECT_EQ(CurrentSet->sName, QStringLiteral("Commands"));
  EXPECT_EQ(CurrentShotIndex, 0);
  EXPECT_EQ(run("object of any kind"), 0);
}

TEST_F(ContainerCommands, SetRefreshesTheBackdropOnlyForTheWordRefresh) {
  run("setcontainer tap 0");
  run("setcontainer tap 0 refreshed");
  EXPECT_EQ(tap(), std::make_pair(0, 0));
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("PorchDrip.bmp"));
  run("setcontainer tap 0 refresh");
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("Porch.bmp"));
  EXPECT_TRUE(messages().isEmpty());
}

TEST_F(ContainerCommands, ToggleKeepsTheBackdropOnlyForTheWordAnim) {
  run("togglecontainer tap anim");
  EXPECT_EQ(tap(), std::make_pair(0, 0));
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("PorchDrip.bmp"));
  run("togglecontainer tap");
  run("togglecontainer tap animated");
  EXPECT_EQ(tap(), std::make_pair(0, 0));
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("Porch.bmp"));
}

TEST_F(ContainerCommands, AStateThatIsNoSixteenBitNumberFailsBeforeAnythingChanges) {
  EXPECT_EQ(failureOf("setcontainer tap"), Failure::TypeMismatch);
  EXPECT_EQ(failureOf("setcontainer tap 40000"), Failure::Overflow);
  EXPECT_EQ(tap(), std::make_pair(1, 1));
}

TEST_F(GotoCommands, EveryShotOfTheNameIsShownAndTheLastStands) {
  run("goto shot attic");
  EXPECT_EQ(missingBackdrops(), QStringList({QStringLiteral("Can't find any backdrops for Attic check VisualRegistry and try again."),
                                             QStringLiteral("Can't find any backdrops for ATTIC check VisualRegistry and try again.")}));
  EXPECT_EQ(CurrentShot, CurrentSet->Shots[3]);
  EXPECT_EQ(CurrentShotIndex, 3);
  EXPECT_EQ(stored(QStringLiteral("Current Shot")), 3);
}

TEST_F(GotoCommands, AnUnknownShotDoesNothingAndAMissingSetFails) {
  run("goto shot cellar");
  EXPECT_EQ(CurrentShot, CurrentSet->Shots[0]);
  EXPECT_TRUE(messages().isEmpty());
  EXPECT_EQ(failureOf("goto set missing.set"), Failure::FileNotFound);
  run("goto set small.set");
  EXPECT_EQ(CurrentSet->sName, QStringLiteral("Small"));
}

TEST_F(DeviceCommands, SetHotSpotNeedsTheWordActiveToSwitchOn) {
  for (const auto& [line, on] : {std::pair{"sethotspot lamp", false}, {"sethotspot LAMP active", true}, {"sethotspot lamp on", false}}) {
    run(line);
    EXPECT_EQ(enabled(1), on) << line;
  }
  EXPECT_TRUE(enabled(0));
  run("sethotspot chimney active");
  EXPECT_EQ(messages(), QStringList({QStringLiteral("Hotspot chimney not found in current shot.")}));
}

TEST_F(DeviceCommands, SpritesStartAndStopByNameAndUnknownNamesDoNothing) {
  const std::shared_ptr<cSprite> drip = CurrentSet->GetSpriteByName(QStringLiteral("drip"));
  run("stopsprite drip");
  run("stopsprite drip");
  EXPECT_EQ(drip->FrameStep, 0);
  run("animatesprite drip");
  EXPECT_EQ(drip->FrameStep, 1);
  run("animatesprite nothing");
  run("stopsprite nothing");
  EXPECT_TRUE(messages().isEmpty());
}

// 2 is no screen's number, so nothing is there to shut down: the words alone are seen at work.
TEST_F(DeviceCommands, OnlyTheClosingComputerWordsChangeTheOpenScreen) {
  ActiveComputerScreen = 2;
  for (const char* line : {"computer", "computer chalkboard", "computer print"}) run(line);
  EXPECT_EQ(ActiveComputerScreen, 2);
  run("computer shutdown");
  EXPECT_EQ(ActiveComputerScreen, 0);
  ActiveComputerScreen = 2;
  run("computer communitychalkboard");
  EXPECT_EQ(ActiveComputerScreen, 0);
}

// The sound manager over the live world's resources, with one wave file under "Audio".
class SoundCommands : public Commands {
 protected:
  void SetUp() override {
    Commands::SetUp();
    CloseAudioOutput();
    resources.write(QStringLiteral("Audio/tick.wav"), toneWave(50));
    SoundMgr().Init();
  }
  void TearDown() override {
    SoundMgr().UnloadSounds();
    CloseAudioOutput();
    soundControls().CurrentSound = 0;
    Commands::TearDown();
  }
  ScopedEnvironment m_driver{"SDL_AUDIODRIVER", "dummy"};
};

TEST_F(SoundCommands, LoadSoundGivesTheManagersAnswerAsTheLineResult) {
  EXPECT_EQ(run("loadsound tick.wav tick"), -1);
  EXPECT_EQ(SoundMgr().Sounds().front().SoundName, QStringLiteral("tick"));
  SoundMgr().Disable();
  EXPECT_EQ(run("loadsound tick.wav tock"), 0);
  EXPECT_EQ(SoundMgr().NumSounds(), 1);
}

TEST_F(SoundCommands, PlayLocalLoopsOnlyForTheWordLooped) {
  run("loadsound tick.wav tick");
  const std::pair<const char*, bool> plays[] = {
      {"playlocal tick looped", true}, {"playlocal tick loop", false}, {"playlocal tick looped", true}, {"playlocal tick", false}};
  for (const auto& [line, looped] : plays) {
    run(line);
    EXPECT_EQ(SoundMgr().IsLooped(0), looped) << line;
  }
}

}  // namespace
}  // namespace fh::test
