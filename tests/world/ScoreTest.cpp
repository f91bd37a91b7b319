#include "world/Score.h"

#include "platform/base/Failure.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

TEST(ScoreFrom, TheHouseAsItStartsIsHundredAndTheWiseHouseOne) {
  const ScoreBaselines baselines{16, 1200};
  EXPECT_EQ(ScoreFrom({1200, 16}, baselines), 100);
  EXPECT_EQ(ScoreFrom({0, 0}, baselines), 1);
  EXPECT_EQ(ScoreFrom({0, 16}, baselines), 63);   // all objects wise, no state changed
  EXPECT_EQ(ScoreFrom({1200, 0}, baselines), 38);  // all states wise, no object changed
}

TEST(ScoreFrom, IsNotCappedAndNeedsItsBaselines) {
  EXPECT_EQ(ScoreFrom({200, 3}, {3, 100}), 137);
  EXPECT_THROW(ScoreFrom({0, 0}, {0, 100}), RuntimeFailure);
  EXPECT_THROW(ScoreFrom({0, 0}, {3, 0}), RuntimeFailure);
}

}  // namespace
}  // namespace fh::test
