#include "world/Score.h"

#include "platform/base/Failure.h"

#include "FailureOf.h"

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
  EXPECT_EQ(failureOf([] { ScoreFrom({0, 0}, {0, 100}); }), Failure::DivisionByZero);
  EXPECT_EQ(failureOf([] { ScoreFrom({0, 0}, {3, 0}); }), Failure::DivisionByZero);
  // A query that gave no row makes its half 0 without dividing by the baseline.
  EXPECT_EQ(ScoreFrom({std::nullopt, 16}, {16, 0}), 63);
  EXPECT_EQ(ScoreFrom({}, {0, 0}), 1);
}

// The 16-bit score is taken after the 1 is added: 32767 + 1 overflows, -32769 + 1 doesn't.
TEST(ScoreFrom, IsNarrowedToSixteenBitsAfterTheOneIsAdded) {
  const ScoreBaselines baselines{1, 99};  // the object sum counts as it stands
  EXPECT_EQ(ScoreFrom({88557, 0}, baselines), 32767);
  EXPECT_EQ(failureOf([&] { ScoreFrom({88560, 0}, baselines); }), Failure::Overflow);
  EXPECT_EQ(ScoreFrom({-88565, 0}, baselines), -32768);
}

}  // namespace
}  // namespace fh::test
