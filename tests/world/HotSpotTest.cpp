#include "LiveWorld.h"

#include "FailureOf.h"
#include "platform/base/Failure.h"
#include "world/SetFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

namespace fh::test {
namespace {

TEST(HitTest, EdgesAreOutsideAndTheLowestIndexWinsEvenWhenDisabled) {
  auto shot = makeShot("Porch", {placedHotSpot("Lamp", {10, 20, 30, 40}), placedHotSpot("Wall", {0, 0, 100, 100}),
                                 placedHotSpot("Thin", {200, 0, 1, 100})});
  // (10, 30) lies on Lamp's left edge, so it is Wall's; Thin, one pixel wide, is never hit.
  const std::tuple<int, int, int> hits[] = {{11, 21, 0}, {10, 30, 1}, {40, 30, 1}, {0, 50, -1}, {200, 50, -1}, {201, 50, -1}};
  for (const auto& [x, y, index] : hits) EXPECT_EQ(shot->CheckHotSpots(static_cast<i16>(x), static_cast<i16>(y)), index) << x << ", " << y;
  shot->HotSpots[0]->Enabled = false;
  EXPECT_EQ(shot->CheckHotSpots(20, 30), 0);
  EXPECT_EQ(makeShot(QStringLiteral("Empty"))->CheckHotSpots(20, 30), -1);
}

// Both far edges are 16-bit sums, taken for every hotspot looked at, wherever the point is.
TEST(HitTest, AnEdgePast32767IsAnOverflow) {
  for (const auto& spot : {placedHotSpot("Wide", {32700, 0, 68, 10}), placedHotSpot("Tall", {0, 32700, 10, 68})}) {
    auto shot = makeShot(QStringLiteral("Porch"), {spot});
    EXPECT_EQ(failureOf([&] { shot->CheckHotSpots(5, 5); }), Failure::Overflow) << spot->Name.toStdString();
  }
  EXPECT_EQ(makeShot("Porch", {placedHotSpot("Edge", {32700, 0, 67, 10})})->CheckHotSpots(32766, 5), 0);
}

TEST(HotSpotList, AddKeepsTheDefaultsAndDeleteMovesTheLastIntoTheGap) {
  auto shot = makeShot("Porch", {placedHotSpot("A", {0, 0, 50, 50}), placedHotSpot("B", {0, 0, 50, 50})});
  EXPECT_EQ(shot->AddHotSpot(5, 6, 7, 8), 2);
  const cHotSpot& added = *shot->HotSpot(2);
  EXPECT_EQ(QRect(added.Left, added.Top, added.Width, added.Height), QRect(5, 6, 7, 8));
  EXPECT_EQ(added.Icon, 5);
  EXPECT_TRUE(added.Enabled);
  EXPECT_TRUE(added.Name.isEmpty());
  shot->HotSpot(2)->Name = QStringLiteral("C");

  shot->DeleteHotSpot(0);
  EXPECT_EQ(shot->NumHotSpots, 2);
  EXPECT_EQ(shot->HotSpot(0)->Name, QStringLiteral("C"));
  EXPECT_EQ(shot->HotSpot(1)->Name, QStringLiteral("B"));
  EXPECT_FALSE(shot->HotSpot(-1));
  // The slots stay: the one the last hotspot left and the top one are empty, and past them is a bounds failure.
  EXPECT_FALSE(shot->HotSpot(2));
  EXPECT_FALSE(shot->HotSpot(3));
  EXPECT_EQ(failureOf([&] { shot->HotSpot(4); }), Failure::SubscriptOutOfRange);
  shot->DeleteHotSpot(1);
  shot->DeleteHotSpot(0);
  EXPECT_FALSE(shot->HotSpot(0));
  EXPECT_EQ(failureOf([&] { shot->DeleteHotSpot(0); }), Failure::SubscriptOutOfRange);
}

// A delete at or past the count but inside the slots moves the last hotspot there, out of the count.
TEST(HotSpotList, DeletingTheTopSlotTakesTheLastOutOfTheCount) {
  auto shot = makeShot("Porch", {placedHotSpot("A", {0, 0, 50, 50}), placedHotSpot("B", {0, 0, 50, 50})});
  EXPECT_EQ(failureOf([&] { shot->DeleteHotSpot(3); }), Failure::SubscriptOutOfRange);
  EXPECT_EQ(shot->NumHotSpots, 2);
  shot->DeleteHotSpot(2);
  EXPECT_EQ(shot->NumHotSpots, 1);
  EXPECT_FALSE(shot->HotSpot(1));
  EXPECT_EQ(shot->HotSpot(2)->Name, QStringLiteral("B"));
  EXPECT_EQ(shot->CheckHotSpots(10, 10), 0);
  EXPECT_EQ(savedBytes(*shot).size(), cShot::kEmptyRecordSize + cHotSpot::kEmptyRecordSize);
}

TEST(HotSpotLines, ReadingPastTheEmptyLastLineFailsAndWritingPastTheCountIsIgnored) {
  auto spot = makeHotSpot(QStringLiteral("Door"), {QStringLiteral("goto shot hall"), QStringLiteral("playlocal door")});
  EXPECT_EQ(spot->Script(1), QStringLiteral("playlocal door"));
  EXPECT_EQ(spot->Script(2), QString());
  EXPECT_THROW(spot->Script(3), RuntimeFailure);
  spot->SetScriptLine(2, QStringLiteral("lost"));
  EXPECT_EQ(spot->Script(2), QString());
  spot->SetNumScriptLines(3);
  spot->SetScriptLine(2, QStringLiteral("kept"));
  EXPECT_EQ(spot->Script(2), QStringLiteral("kept"));
  spot->SetNumScriptLines(1);
  EXPECT_EQ(spot->Script(0), QStringLiteral("goto shot hall"));
  EXPECT_EQ(spot->Script(1), QString());
  spot->SetNumScriptLines(0);
  EXPECT_EQ(spot->Script(7), QString());
}

// The live hotspot runs its lines against the small world.
class LiveHotSpot : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    auto tap = placedHotSpot("Tap", {10, 10, 50, 50}, {"togglecontainer tap", "togglecontainer lamp"});
    tap->Icon = 2;
    tap->Rollover = QStringLiteral("ShowDialog hello");
    auto lamp = placedHotSpot("Lamp", {100, 10, 50, 50});
    lamp->Rollover = QStringLiteral("togglecontainer lamp");
    data.write(QStringLiteral("Small.set"), savedBytes(makeSet("Small", {makeShot("Porch", {tap, lamp}), makeShot("Hall")})));
    LoadSet(QStringLiteral("Small.set"));
  }
  cHotSpot& spot(i16 index) { return *CurrentShot->HotSpot(index); }
  int cursor() { return view().DisplayView->MousePointer(); }
};

TEST_F(LiveHotSpot, LiteUpSetsTheCursorAndRunsTheRolloverAndLiteDownGivesBackTheLastText) {
  spot(0).LiteUp(false);
  EXPECT_EQ(cursor(), 2);
  EXPECT_EQ(text(), QStringLiteral("Hello there."));
  spot(0).LiteDown();
  EXPECT_EQ(cursor(), 99);
  EXPECT_EQ(text(), QStringLiteral("The Porch"));

  // A rollover of another kind is not undone.
  spot(1).LiteUp(false);
  spot(1).LiteDown();
  EXPECT_EQ(text(), QStringLiteral("Hall Lamp is now off"));
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("lamp")).CurrentState, 0);
}

TEST_F(LiveHotSpot, FireRunsEveryLineAndADisabledHotSpotDoesNothingAtAll) {
  spot(0).Fire();
  EXPECT_EQ(stored(QStringLiteral("CurrentState"), QStringLiteral("Tap")), 0);
  EXPECT_EQ(stored(QStringLiteral("CurrentState"), QStringLiteral("Lamp")), 0);

  CurrentShot->SetHotspotState(QStringLiteral("TAP"), false);
  view().TextWindow->setText(QStringLiteral("untouched"));
  view().SetCursor(7);
  spot(0).LiteUp(true);
  spot(0).Fire();
  spot(0).LiteDown();
  EXPECT_EQ(text(), QStringLiteral("untouched"));
  EXPECT_EQ(stored(QStringLiteral("CurrentState"), QStringLiteral("Tap")), 0);
  EXPECT_EQ(cursor(), 7);

  CurrentShot->SetHotspotState(QStringLiteral("Attic door"), true);
  EXPECT_EQ(messages(), QStringList({QStringLiteral("Hotspot Attic door not found in current shot.")}));
}

}  // namespace
}  // namespace fh::test
