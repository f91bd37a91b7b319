#include "LiveWorld.h"

#include "script/ContainerState.h"
#include "world/SetFile.h"
#include "world/cSet.h"

namespace fh::test {
namespace {

// Ada on the porch: the tap dripping, the lamp on.
class ShotVisuals : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    LoadSet(QStringLiteral("Small.set"));
  }
  cSprite& sprite(const char* name) { return *CurrentSet->GetSpriteByName(QString::fromLatin1(name)); }
};

TEST_F(ShotVisuals, TheFirstHoldingRowDecidesAndASpriteWithoutOneIsHidden) {
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("PorchDrip.bmp"));
  // Two rows of Drip hold: the first one's strip and sound count, without a warning.
  EXPECT_EQ(sprite("drip").CelSource(), QStringLiteral("Drip.bmp"));
  EXPECT_EQ(sprite("drip").Sound(), QStringLiteral("Drip"));
  EXPECT_TRUE(messages().isEmpty());
  // It loops: drawn on its resting cel, then started.
  EXPECT_EQ(shown(5, 5), QColor(Qt::yellow));
  EXPECT_TRUE(view().SpriteTimer[0]->Enabled());
  // Nothing holds for Fan while the lamp is on.
  EXPECT_EQ(sprite("fan").CelSource(), QString());
  EXPECT_FALSE(view().SpriteTimer[1]->Enabled());
}

TEST_F(ShotVisuals, WithoutAChangeStripsAreTakenButNotDrawnAndOtherShotsSpritesStillHide) {
  sprite("glow").SetCels(QStringLiteral("Glow.bmp"), QString());
  sprite("glow").Go();
  view().CurrentHotSpotIndex = 2;
  SetContainer(QStringLiteral("lamp"), 0, false);
  EXPECT_FALSE(view().SpriteTimer[2]->Enabled());
  EXPECT_EQ(sprite("fan").CelSource(), QStringLiteral("Fan.bmp"));
  EXPECT_EQ(shown(55, 5), QColor(Qt::gray));
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);

  SetContainer(QStringLiteral("tap"), 0, false);
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("PorchDrip.bmp"));
  SetContainer(QStringLiteral("tap"), 0, true);
  EXPECT_EQ(view().CurrentBackdrop(), QStringLiteral("Porch.bmp"));
}

TEST_F(ShotVisuals, TheScoreRunsFromHundredToTheWin) {
  EXPECT_EQ(view().Score->text(), QStringLiteral("100"));
  SetContainer(QStringLiteral("tap"), 0, false);
  EXPECT_EQ(CurrentScore, 69);  // Int(99 x 0.37 + 49.5 x 0.63 + 0.5) + 1
  EXPECT_FALSE(UserHasWonGame);

  store(QStringLiteral("CurrentObject"), QStringLiteral("LED Bulb"), QStringLiteral("Bulb"));
  SetContainer(QStringLiteral("lamp"), 0, false);
  EXPECT_EQ(stored(QStringLiteral("HasWonGame")), 1);
  // The score is shown before the win is marked; "wise!" stands from the next refresh on.
  EXPECT_EQ(view().Score->text(), QStringLiteral("1"));
  store(QStringLiteral("HasWonGame"), 0);
  SetContainer(QStringLiteral("tap"), 1, false);
  EXPECT_EQ(view().Score->text(), QStringLiteral("wise!"));
  EXPECT_EQ(stored(QStringLiteral("HasWonGame")), 0);  // the win is marked once
}

}  // namespace
}  // namespace fh::test
