#include "LiveWorld.h"

#include "game/Screens.h"
#include "platform/base/Failure.h"
#include "world/SetFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

namespace fh::test {
namespace {

// The small world in edit mode: the porch has one hotspot, the door at (10, 10) of 60 by 60; the
// hall has none. The mouse reaches the window through its hook, over the backdrop.
class EditMode : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    auto door = placedHotSpot("Door", {10, 10, 60, 60});
    data.write(QStringLiteral("Small.set"), savedBytes(makeSet("Small", {makeShot("Porch", {door}), makeShot("Hall")})));
    GameMode = 1;
    LoadSet(QStringLiteral("Small.set"));
    view().show();
    screens().hotSpotDialog = [this] { ++hotSpotDialogs; };
  }
  void TearDown() override {
    screens().hotSpotDialog = nullptr;
    LiveWorld::TearDown();
  }

  void send(QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::NoButton) {
    QMouseEvent event(type, at, view().Backdrop->mapToGlobal(at), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(view().Backdrop, &event);
  }
  void moveTo(int x, int y) { send(QEvent::MouseMove, {x, y}); }
  void press(int x, int y, Qt::MouseButton button) { send(QEvent::MouseButtonPress, {x, y}, button); }
  void tick() { view().GameClock_Timer(); }
  void moveAndTick(int x, int y) { moveTo(x, y); tick(); }
  cHotSpot& door() { return *CurrentShot->HotSpot(0); }
  QRect doorPlace() { return {door().Left, door().Top, door().Width, door().Height}; }

  int hotSpotDialogs = 0;
};

TEST_F(EditMode, ARightPressOnEmptyGroundDrawsANewHotspotAroundThePointer) {
  CurrentSet->ShowShot(1);
  view().modeDebug();
  EXPECT_FALSE(view().DisplayView->isVisible());
  EXPECT_TRUE(view().Backdrop->isVisible());
  press(100, 50, Qt::RightButton);
  ASSERT_EQ(CurrentShot->NumHotSpots, 1);
  EXPECT_EQ(view().CurrentHotSpotIndex, 0);
  EXPECT_EQ(CurrentShot->HotSpot(0)->Name, QStringLiteral("HotSpot1"));
  EXPECT_EQ(view().Highlight[0]->geometry(), QRect(view().DisplayView->pos() + QPoint(98, 48), QSize(20, 20)));
  EXPECT_TRUE(view().RightDown());
  view().EditOff();
  EXPECT_FALSE(view().Highlight[0]->isVisible());
  EXPECT_TRUE(view().DisplayView->isVisible());
}

TEST_F(EditMode, ANineteenthDrawnHotspotIsRefusedAndLeavesNothingToDrag) {
  for (int i = 1; i < 19; ++i) CurrentShot->AddHotSpot(toI16(200 + i * 5), 200, 2, 2);
  view().modeDebug();
  press(300, 100, Qt::RightButton);
  ASSERT_EQ(messages().size(), 1);
  EXPECT_EQ(ui.messageBoxes().front().title, QStringLiteral("Whoa there little fella!"));
  EXPECT_EQ(messages().front(), QStringLiteral("Maximum number of hotspots reached."));
  EXPECT_EQ(CurrentShot->NumHotSpots, 19);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  EXPECT_TRUE(view().RightDown());
}

// The tick's hit test comes first, then the drag: the left button moves, the right one sizes, and
// both together do both.
TEST_F(EditMode, TheTickMovesTheHotspotWithTheLeftButtonAndSizesItWithTheRight) {
  view().modeDebug();
  moveAndTick(30, 30);
  press(30, 30, Qt::LeftButton);
  moveAndTick(40, 45);
  EXPECT_EQ(doorPlace(), QRect(20, 25, 60, 60));
  EXPECT_EQ(view().Highlight[0]->pos(), view().DisplayView->pos() + QPoint(20, 25));

  press(40, 45, Qt::RightButton);
  moveAndTick(45, 47);
  EXPECT_EQ(doorPlace(), QRect(25, 27, 65, 62));
  EXPECT_EQ(view().Highlight[0]->size(), QSize(65, 62));
}

// A right press far below takes up a small hotspot there; a quick move onto the door sizes the door
// by the whole way, past its own corner. The outline can't have that size: the tick fails, forgets
// the hotspot and leaves the rectangle as it was, without a word.
TEST_F(EditMode, ASizePulledPastItsCornerEndsOnlyTheTick) {
  CurrentShot->AddHotSpot(200, 200, 10, 10);
  view().modeDebug();
  press(205, 205, Qt::RightButton);
  moveAndTick(15, 15);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  EXPECT_EQ(doorPlace(), QRect(10, 10, 60, 60));
  EXPECT_TRUE(messages().isEmpty());
  send(QEvent::MouseButtonRelease, {15, 15}, Qt::RightButton);
  tick();
  EXPECT_EQ(view().CurrentHotSpotIndex, 0);
}

TEST_F(EditMode, ADoubleClickOpensTheDialogOfTheHotspotUnderItAndNothingOnEmptyGround) {
  view().modeDebug();
  send(QEvent::MouseButtonDblClick, {300, 300}, Qt::LeftButton);
  EXPECT_EQ(hotSpotDialogs, 0);
  send(QEvent::MouseButtonDblClick, {20, 20}, Qt::LeftButton);
  EXPECT_EQ(hotSpotDialogs, 1);
  EXPECT_EQ(view().CurrentHotSpotIndex, 0);
}

// Edit mode is for authors only; a load keeps the mode, on the shot the new set shows.
TEST_F(EditMode, OnlyAnAuthorReachesTheModeAndALoadKeepsIt) {
  QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
  QCoreApplication::sendEvent(&view(), &f2);
  EXPECT_EQ(GameMode, 1);
  EXPECT_FALSE(view().btnSetForm->isVisible());
  view().setAuthoring(true);
  EXPECT_TRUE(view().Save->isVisible());
  QCoreApplication::sendEvent(&view(), &f2);
  EXPECT_EQ(GameMode, 0);
  LoadSet(QStringLiteral("Small.set"));
  EXPECT_EQ(GameMode, 0);
  EXPECT_TRUE(view().Highlight[0]->isVisible());
  QCoreApplication::sendEvent(&view(), &f2);
  EXPECT_EQ(GameMode, 1);
  view().setAuthoring(false);
}

}  // namespace
}  // namespace fh::test
