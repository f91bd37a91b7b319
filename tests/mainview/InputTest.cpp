#include "LiveWorld.h"
#include "SoundFiles.h"

#include "game/Screens.h"
#include "platform/desktop/AudioOutput.h"
#include "platform/desktop/ImagePair.h"
#include "platform/desktop/MessageHook.h"
#include "platform/desktop/PictureButton.h"
#include "screens/LendScreens.h"
#include "screens/SelectMusic.h"
#include "sound/SoundControls.h"
#include "sound/cSoundMgr.h"
#include "world/Condition.h"
#include "world/SetFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <future>
#include <stdexcept>
#include <thread>

namespace fh::test {
namespace {

std::shared_ptr<cHotSpot> spot(const QString& name, QRect place, const QString& rollover, const QStringList& lines) {
  auto hotspot = placedHotSpot(name, place, lines);
  hotspot->Rollover = rollover;
  return hotspot;
}

// The small world with hotspots, sounds and a television, played with mouse events sent to the
// main view as the platform sends them. The game clock is ticked by hand.
class PlayInput : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    auto tap = spot("Tap", {10, 10, 60, 60}, "showdialog hello", {"togglecontainer tap"});
    tap->Icon = 2;
    auto door = spot("Door", {100, 10, 60, 200}, "showdialogstring the door", {"goto shot hall", "setcontainer lamp 0"});
    auto broken = spot("Broken", {200, 10, 60, 60}, {}, {"togglecontainer lamp", "togglecontainer nosuch", "togglecontainer tap"});
    auto telly = spot("Telly", {300, 10, 60, 60}, {}, {"showvideo next", "togglecontainer tap"});
    auto porch = makeShot(QStringLiteral("Porch"), {tap, door, broken, telly});
    porch->ShotToRight = QStringLiteral("Hall");
    auto hall = makeShot(QStringLiteral("Hall"), {spot("Stairs", {90, 0, 100, 100}, "showdialogstring upstairs", {})});
    hall->ShotToLeft = QStringLiteral("Porch");
    data.write(QStringLiteral("Small.set"), savedBytes(makeSet(QStringLiteral("Small"), {porch, hall, makeShot(QStringLiteral("Computer"))})));

    CloseAudioOutput();
    resources.makeFolder(QStringLiteral("Audio"));
    SoundMgr().Init();
    for (const char* name : {"Click", "LiteUp"}) {
      resources.write(QStringLiteral("Audio/%1.wav").arg(QLatin1StringView(name)), toneWave(3000));
      ASSERT_TRUE(SoundMgr().LoadSound(QStringLiteral("%1.wav").arg(QLatin1StringView(name)), QString::fromLatin1(name)));
    }
    GameMode = 1;
    ActiveComputerScreen = 0;
    TVChannel = 0;
    LoadSet(QStringLiteral("Small.set"));
    view().show();
    LendChoiceScreens();
    // The computer's screens aren't part of these tests: the computer opens none.
    screens().computer = [](i16) -> ComputerScreen* { return nullptr; };
  }

  void TearDown() override {
    UnloadSelectMusic();
    SoundMgr().UnloadSounds();
    CloseAudioOutput();
    soundControls().CurrentSound = 0;
    ActiveComputerScreen = 0;
    LiveWorld::TearDown();
  }

  QStringList moreRows() const override { return {QStringLiteral(FH_SOURCE_DIR "/tests/world/Television.sql")}; }

  static void send(QWidget* to, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::NoButton) {
    QMouseEvent event(type, at, to->mapToGlobal(at), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(to, &event);
  }
  // On the picture itself, in its pixels.
  void moveTo(int x, int y) { send(view().DisplayView, QEvent::MouseMove, {x, y}); }
  void press(int x, int y, Qt::MouseButton button = Qt::LeftButton) { send(view().DisplayView, QEvent::MouseButtonPress, {x, y}, button); }
  // On the frame around the picture, in pixels of the frame picture.
  void onFrame(QEvent::Type type, QPoint inFrame, Qt::MouseButton button = Qt::NoButton) { send(view().BackPlane, type, inFrame, button); }
  void click(ImagePair* button, Qt::MouseButton which = Qt::LeftButton) {
    send(button, QEvent::MouseButtonPress, {5, 5}, which);
    send(button, QEvent::MouseButtonRelease, {5, 5}, which);
  }
  void tick() { view().GameClock_Timer(); }
  // The pointer comes to rest there, and the tick's hover test sees it.
  void hover(int x, int y) { moveTo(x, y); tick(); }
  void clickOn(int x, int y) { hover(x, y); press(x, y); }

  int state(const char* container) { return CurrentSet->GetContainer(QString::fromLatin1(container)).CurrentState; }
  int cursor() { return view().DisplayView->MousePointer(); }
  // The sound that holds the channel: 0 Click, 1 LiteUp, -1 none.
  static i16 sounding() { return soundControls().CurrentSound; }
  void silence() { soundControls().StopSound(soundControls().CurrentSound); }
};

using ClickRoad = PlayInput;
using FrameButtons = PlayInput;
using SavingUnderAClick = PlayInput;

// Another program that holds the database's write lock for a while, from a thread of its own.
class LockHolder {
 public:
  LockHolder(const QString& file, int milliseconds) {
    std::promise<void> locked;
    m_thread = std::thread([file, milliseconds, &locked] {
      {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("lock holder"));
        db.setDatabaseName(file);
        db.open();
        QSqlQuery(db).exec(QStringLiteral("BEGIN EXCLUSIVE"));
        locked.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        QSqlQuery(db).exec(QStringLiteral("COMMIT"));
        db.close();
      }
      QSqlDatabase::removeDatabase(QStringLiteral("lock holder"));
    });
    locked.get_future().wait();
  }
  ~LockHolder() { m_thread.join(); }

 private:
  std::thread m_thread;
};

TEST_F(ClickRoad, TheHoverTestWaitsForTheTickAndRunsTheRolloverOncePerEntry) {
  moveTo(30, 30);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  tick();
  EXPECT_EQ(cursor(), 2);
  EXPECT_EQ(text(), QStringLiteral("Hello there."));
  EXPECT_EQ(sounding(), 1);

  silence();
  view().TextWindow->setText(QStringLiteral("unchanged"));
  hover(40, 40);
  EXPECT_EQ(text(), QStringLiteral("unchanged"));
  EXPECT_EQ(sounding(), -1);

  // Straight into the door: the tap goes out, giving back the last text, and the door lights.
  hover(120, 100);
  EXPECT_EQ(view().CurrentHotSpotIndex, 1);
  EXPECT_EQ(text(), QStringLiteral("the door"));
  hover(500, 300);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  EXPECT_EQ(cursor(), 99);
  EXPECT_EQ(text(), QStringLiteral("the door"));  // a free text is its own last text
}

TEST_F(ClickRoad, AClickFiresTheLitHotspotAndTheNewShotLightsInSilence) {
  hover(120, 50);
  silence();
  press(120, 50);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Hall"));
  EXPECT_EQ(state("lamp"), 0);  // the line behind the goto ran against the new shot
  EXPECT_EQ(text(), QStringLiteral("upstairs"));
  EXPECT_EQ(sounding(), 0);  // the click, and no rollover sound after it
  EXPECT_FALSE(view().LeftDown());
}

TEST_F(ClickRoad, AClickBeforeTheFirstTickOrWithAnotherButtonDoesNothing) {
  moveTo(30, 30);
  press(30, 30);
  EXPECT_EQ(state("tap"), 1);
  EXPECT_TRUE(view().LeftDown());  // the picture's own release isn't heard
  tick();
  press(30, 30, Qt::RightButton);
  EXPECT_EQ(state("tap"), 1);
  EXPECT_FALSE(view().RightDown());
  press(30, 30);
  EXPECT_EQ(state("tap"), 0);
}

// A quick second click is a double click, whose second press the picture doesn't report.
TEST_F(ClickRoad, ADoubleClickFiresOnce) {
  clickOn(30, 30);
  send(view().DisplayView, QEvent::MouseButtonDblClick, {30, 30}, Qt::LeftButton);
  EXPECT_EQ(state("tap"), 0);
}

TEST_F(ClickRoad, AFailingLineEndsTheScriptSilentlyAndTheNextTickLightsAgain) {
  clickOn(230, 30);
  EXPECT_EQ(state("lamp"), 0);
  EXPECT_EQ(state("tap"), 1);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  EXPECT_TRUE(messages().isEmpty());
  tick();
  EXPECT_EQ(view().CurrentHotSpotIndex, 2);
}

// The standard library's failures are swallowed like the game's own; the program's End goes through.
TEST_F(ClickRoad, TheNetsSwallowAnyFailureButLetTheProgramsEndThrough) {
  std::function<void()> fail = [] { throw std::out_of_range("a list too short"); };
  setConditionTest([&fail](const QString&) -> i16 {
    fail();
    return kTrue;
  });
  const std::shared_ptr<cHotSpot> tap = CurrentShot->HotSpot(0);
  tap->SetScriptLine(0, QStringLiteral("if tap state 1"));
  clickOn(30, 30);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  tap->Rollover = QStringLiteral("if tap state 1");
  tick();
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  EXPECT_TRUE(messages().isEmpty());

  fail = [] { EndProgram(); };
  EXPECT_THROW(tick(), ProgramEnded);
  setConditionTest({});
}

// The film can't be shown: the line fails there, like any other failing line.
TEST_F(ClickRoad, TheTelevisionShowsTheCaptionAndLosesTheLinesBehindIt) {
  clickOn(330, 30);
  EXPECT_EQ(TVChannel, 1);
  EXPECT_EQ(text(), QStringLiteral("You are watching The Fernhollow Video"));
  EXPECT_EQ(state("tap"), 1);
  EXPECT_TRUE(messages().isEmpty());
}

// The frame is heard through the window's hook, in pixels of the picture; the right button
// matters only for the editor, with its release ignored while the left is down.
TEST_F(ClickRoad, TheFrameIsHeardInPicturePixelsAndARightReleaseWaitsForTheLeft) {
  onFrame(QEvent::MouseMove, {10, 20});
  EXPECT_EQ(view().MouseX(), 6);
  EXPECT_EQ(view().MouseY(), -28);
  onFrame(QEvent::MouseButtonPress, {10, 20}, Qt::RightButton);
  onFrame(QEvent::MouseButtonPress, {10, 20}, Qt::LeftButton);
  onFrame(QEvent::MouseButtonRelease, {10, 20}, Qt::RightButton);
  EXPECT_TRUE(view().RightDown());
  onFrame(QEvent::MouseButtonRelease, {10, 20}, Qt::LeftButton);
  EXPECT_FALSE(view().LeftDown());
  EXPECT_TRUE(view().RightDown());
  onFrame(QEvent::MouseButtonRelease, {10, 20}, Qt::RightButton);
  EXPECT_FALSE(view().RightDown());
}

// A write waits a while for another program's; one that can't be made is told, and the house in
// memory goes back to what the database holds.
TEST_F(SavingUnderAClick, AWriteWaitsForABriefLockAndAFailedOneIsToldAndUndone) {
  const auto pressWhileLocked = [this](int milliseconds) {
    LockHolder lock(data.at(QStringLiteral("Fernhollow.mdb")), milliseconds);
    press(30, 30);
  };
  hover(30, 30);
  pressWhileLocked(1000);
  EXPECT_EQ(state("tap"), 0);
  EXPECT_EQ(stored(QStringLiteral("CurrentState"), QStringLiteral("Tap")), 0);
  EXPECT_TRUE(messages().isEmpty());

  tick();
  pressWhileLocked(4500);
  EXPECT_EQ(state("tap"), 0);
  ASSERT_EQ(messages().size(), 1);
  EXPECT_TRUE(messages().front().startsWith(QStringLiteral("The game could not save your last change")));
}

// A player taken out at another screen while still playing here: the move has nowhere to go, and
// the game says so and goes on.
TEST_F(SavingUnderAClick, AMoveOfARemovedPlayerIsTold) {
  row().Delete();
  click(view().btnRight);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Hall"));
  ASSERT_EQ(messages().size(), 1);
  EXPECT_TRUE(messages().front().contains(QStringLiteral("player 1 is no longer in table Users"))) << messages().front().toStdString();
}

TEST_F(FrameButtons, TheArrowsTurnToTheNeighboursWithAClickAndAnEmptySideStays) {
  silence();
  click(view().btnLeft);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Porch"));
  EXPECT_EQ(sounding(), -1);
  EXPECT_TRUE(view().btnLeft->upVisible());
  click(view().btnRight, Qt::RightButton);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Hall"));
  EXPECT_EQ(sounding(), 0);
  click(view().btnLeft);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Porch"));
  EXPECT_EQ(ui.yields(), 6);
}

TEST_F(FrameButtons, TheComputerButtonGoesThereAndBackOnlyWhenItTookThePlayerThere) {
  CurrentSet->ShowShot(2);
  silence();
  click(view().btnComputer);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Computer"));
  EXPECT_EQ(sounding(), -1);

  CurrentSet->ShowShot(1);
  click(view().btnComputer);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Computer"));
  EXPECT_EQ(view().ShotBeforeComputer(), QStringLiteral("Hall"));
  ActiveComputerScreen = 3;
  click(view().btnComputer);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Hall"));
  EXPECT_EQ(ActiveComputerScreen, 0);
}

TEST_F(FrameButtons, ExitWithTheComputerOpenOnlySaysSo) {
  ActiveComputerScreen = 1;
  click(view().btnExit);
  EXPECT_EQ(messages(), QStringList({QStringLiteral("You must exit the computer before you can exit the game...")}));
  EXPECT_TRUE(CurrentSet);
}

// The music lies over the house, 40 pixels up and left of the picture's centre, and is only hidden
// when closed.
TEST_F(FrameButtons, TheStereoOpensTheMusicOverTheHouseAndKeepsItsLabel) {
  ActiveComputerScreen = 1;
  click(view().btnStereo);
  EXPECT_TRUE(ui.shown().empty());
  ActiveComputerScreen = 0;
  const QPoint place = view().pictureOnScreen().topLeft() + QPoint(316 - 160 - 40, 195 - 120 - 40);
  ui.queueModal([place](QWidget& form) {
    auto& music = dynamic_cast<SelectMusic&>(form);
    EXPECT_EQ(music.pos(), place);
    music.CurrentSelection->setText(QStringLiteral("Jazz 2"));
    music.btnOK->click();
  });
  click(view().btnStereo);
  ui.queueModal([](QWidget& form) {
    EXPECT_EQ(dynamic_cast<SelectMusic&>(form).CurrentSelection->text(), QStringLiteral("Jazz 2"));
    form.hide();
  });
  click(view().btnStereo);
  EXPECT_EQ(ui.shown().size(), 2u);
}

TEST_F(FrameButtons, OnlyALowerCaseSOpensTheSetup) {
  int setups = 0;
  screens().setup = [&setups] { ++setups; };
  for (const auto& [modifier, typed, opened] : {std::tuple{Qt::ShiftModifier, "S", 0}, {Qt::NoModifier, "s", 1}}) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_S, modifier, QString::fromLatin1(typed));
    QCoreApplication::sendEvent(&view(), &key);
    EXPECT_EQ(setups, opened) << typed;
  }
  screens().setup = nullptr;
}

}  // namespace
}  // namespace fh::test
