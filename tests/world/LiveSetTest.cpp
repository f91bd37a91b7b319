#include "LiveWorld.h"

#include "FailureOf.h"
#include "platform/base/Failure.h"
#include "world/SetFile.h"
#include "world/cSet.h"

namespace fh::test {
namespace {

using LiveSet = LiveWorld;

TEST_F(LiveSet, LoadSetBuildsTheAssetsAndShowsTheShotOfTheUsersRecord) {
  cSet house = makeSet(QStringLiteral("House"), {makeShot(QStringLiteral("Porch")), makeShot(QStringLiteral("Hall"))});
  house.nCurrentShot = 0;
  data.write(QStringLiteral("House.set"), savedBytes(house));
  CurrentShotIndex = 1;
  LoadSet(QStringLiteral("HOUSE.SET"));
  EXPECT_EQ(CurrentShot, CurrentSet->Shot(1));
  EXPECT_EQ(text(), QStringLiteral("The Hall"));
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("Hall.bmp"));

  // Sprites in the query's order, each at its own place on the main view; the caller lowers names.
  ASSERT_EQ(CurrentSet->nNumSprites, 4);
  EXPECT_EQ(CurrentSet->GetSprite(3)->SpriteIndex, 3);
  EXPECT_EQ(CurrentSet->GetSpriteByName(QStringLiteral("glow")), CurrentSet->GetSprite(2));
  EXPECT_FALSE(CurrentSet->GetSpriteByName(QStringLiteral("Glow")));

  // Ada's containers, in any case; she has no row for Radio, which keeps the empty defaults.
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("TAP")).CurrentState, 1);
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("bulb")).CurrentObject, QStringLiteral("Old Bulb"));
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("radio")).CurrentObject, QString());
  EXPECT_THROW(CurrentSet->GetContainer(QStringLiteral("Sofa")), RuntimeFailure);
}

TEST_F(LiveSet, AnEndingSetTakesItsSpritesAndCurrentShotWithIt) {
  LoadSet(QStringLiteral("Small.set"));
  LoadSet(QStringLiteral("Small.set"));
  EXPECT_EQ(view().nSpriteControls, 4);
  CurrentSet.reset();
  EXPECT_FALSE(CurrentShot);
  EXPECT_EQ(view().nSpriteControls, 0);
}

TEST_F(LiveSet, ShowShotRecordsThePositionAtOnceAndMinusOneDoesNothing) {
  LoadSet(QStringLiteral("Small.set"));
  CurrentSet->ShowShot(1);
  EXPECT_EQ(stored(QStringLiteral("Current Shot")), 1);
  view().TextWindow->setText(QStringLiteral("untouched"));
  store(QStringLiteral("Current Shot"), 0);
  CurrentSet->ShowShot(-1);
  EXPECT_EQ(CurrentShot, CurrentSet->Shot(1));
  EXPECT_EQ(stored(QStringLiteral("Current Shot")), 0);
  EXPECT_EQ(text(), QStringLiteral("untouched"));
  // The empty top slot is recorded as the position, and only then found empty.
  EXPECT_EQ(failureOf([] { CurrentSet->ShowShot(CurrentSet->nNumShots); }), Failure::ObjectNotSet);
  EXPECT_EQ(stored(QStringLiteral("Current Shot")), CurrentSet->nNumShots);
}

// Attic has no row in Shots, no backdrop, and a sprite without cel sources: all are survived.
TEST_F(LiveSet, AShotWithoutRowsIsToldAndKeepsTheOldPicture) {
  LoadSet(QStringLiteral("Small.set"));
  CurrentSet->ShowShot(1);
  CurrentSet->ShowShot(2);
  EXPECT_EQ(text(), QStringLiteral("Attic"));
  EXPECT_EQ(messages(), QStringList({"Can't find any backdrops for Attic check VisualRegistry and try again.", "Sprite Ghost does not exist!"}));
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("Hall.bmp"));
}

TEST(SetShots, DeleteShiftsTheRestDownAndTheLastOneClearsTheCurrentShot) {
  cSet set = makeSet(QStringLiteral("S"), {makeShot(QStringLiteral("A")), makeShot(QStringLiteral("B"))});
  EXPECT_EQ(set.AddShot(QStringLiteral("C")), 2);
  set.nCurrentShot = 2;
  CurrentShot = set.Shot(2);
  set.DeleteShot(0);
  EXPECT_EQ(set.Shot(1)->sName, QStringLiteral("C"));
  EXPECT_EQ(set.nCurrentShot, 2);
  set.DeleteShot(1);
  EXPECT_TRUE(CurrentShot);
  set.DeleteShot(0);
  EXPECT_EQ(set.nNumShots, 0);
  EXPECT_FALSE(CurrentShot);
}

// The shots run from 0 to nNumShots, whose slot stays empty. A delete at or past it moves nothing,
// yet the count falls and the resize leaves the last shot in the new top slot, out of the count.
TEST(SetShots, DeletingAtOrPastTheTopTakesTheLastShotOutOfTheCount) {
  cSet set = makeSet(QStringLiteral("S"), {makeShot(QStringLiteral("A")), makeShot(QStringLiteral("B"))});
  EXPECT_FALSE(set.Shot(2));
  EXPECT_EQ(failureOf([&] { set.Shot(3); }), Failure::SubscriptOutOfRange);
  set.DeleteShot(7);
  EXPECT_EQ(set.nNumShots, 1);
  EXPECT_EQ(set.Shot(1)->sName, QStringLiteral("B"));
  EXPECT_EQ(failureOf([&] { set.Shot(2); }), Failure::SubscriptOutOfRange);
  EXPECT_EQ(savedBytes(set).size(), cSet::kEmptyRecordSize + cShot::kEmptyRecordSize);
  // With no shots left the count falls below 0, where no array can be sized.
  set.DeleteShot(0);
  EXPECT_EQ(failureOf([&] { set.DeleteShot(0); }), Failure::SubscriptOutOfRange);
  EXPECT_EQ(set.nNumShots, -1);
}

}  // namespace
}  // namespace fh::test
