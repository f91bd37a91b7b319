#include "LiveWorld.h"

#include "world/cShot.h"

namespace fh::test {
namespace {

// The play-time tick, by hand, on a shot that counts time, with Ada's row to write to.
class PlayTime : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    ModalOpen = false;
    GameElapsedTime = 0;
    CurrentShot = std::make_shared<cShot>();
    CurrentShot->GoElapsedTime = true;
  }
  void tick(int seconds) {
    for (int second = 0; second < seconds; ++second) view().ElapsedTime_Timer();
  }
  float savedTime() { return row().Field(QStringLiteral("ElapsedTime")).toSingle(); }
};

TEST_F(PlayTime, CountsOnlyInTimedShotsWithNoBoxOpenAndBeforeTheWin) {
  tick(61);
  EXPECT_EQ(view().ElapsedTimeView->text(), QStringLiteral("0:01:01"));
  ModalOpen = true;
  tick(1);
  ModalOpen = false;
  CurrentShot->GoElapsedTime = false;
  tick(1);
  CurrentShot->GoElapsedTime = true;
  UserHasWonGame = true;
  tick(1);
  EXPECT_EQ(view().ElapsedTimeView->text(), QStringLiteral("0:01:01"));
  UserHasWonGame = false;
  tick(1);
  EXPECT_EQ(view().ElapsedTimeView->text(), QStringLiteral("0:01:02"));

  CurrentShot.reset();  // no shot: nothing counts, and the clock keeps its last text
  tick(1);
  EXPECT_EQ(view().ElapsedTimeView->text(), QStringLiteral("0:01:02"));
}

TEST_F(PlayTime, EveryCountedMinuteIsWrittenToThePlayersRow) {
  tick(59);
  ModalOpen = true;  // seconds that don't count don't bring the write nearer
  tick(5);
  ModalOpen = false;
  EXPECT_EQ(savedTime(), 0.0f);
  tick(1);
  EXPECT_EQ(savedTime(), GameElapsedTime);
  tick(60);
  EXPECT_EQ(savedTime(), GameElapsedTime);
  EXPECT_TRUE(ui.messageBoxes().empty());
}

// Ada taken out at another screen while still playing here: her minutes have nowhere to go.
TEST_F(PlayTime, AFailedWriteIsToldOnceAndPlayGoesOn) {
  row().Delete();
  tick(180);
  EXPECT_EQ(view().ElapsedTimeView->text(), QStringLiteral("0:03:00"));
  ASSERT_EQ(ui.messageBoxes().size(), 1u);
  EXPECT_TRUE(ui.messageBoxes()[0].text.startsWith(QStringLiteral("The game could not save your play time just now")));
}

}  // namespace
}  // namespace fh::test
