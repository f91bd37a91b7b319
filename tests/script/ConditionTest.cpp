#include "FailureOf.h"
#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "world/Condition.h"
#include "world/cSet.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

// A tap at state 1, a lamp holding a bulb of two words and an empty vase; no database needed.
class Conditions : public testing::Test {
 protected:
  void SetUp() override {
    CurrentSet = std::make_shared<cSet>();
    for (const auto& [name, state, object] : {std::tuple{"tap", 1, ""}, {"lamp", 0, "LED Bulb"}, {"vase", 0, ""}})
      CurrentSet->Containers.emplace(QString::fromLatin1(name),
                                     std::make_shared<cContainer>(cContainer{.CurrentObject = QString::fromLatin1(object),
                                                                             .CurrentState = static_cast<i16>(state)}));
  }
  void TearDown() override { CurrentSet.reset(); }
  static bool holds(const char* conditions) { return EvalConditions(QString::fromLatin1(conditions)) == kTrue; }
};

TEST_F(Conditions, StateComparesTheNumberTheValueStartsWith) {
  for (const char* holding : {"TAP state 1st", "vase state none", "vase state ", "tap STATE 1"}) EXPECT_TRUE(holds(holding)) << holding;
  for (const char* failing : {"tap state 0", "tap is 1"}) EXPECT_FALSE(holds(failing)) << failing;
}

// Script words carry no blanks: only the object loses its blanks, never the value.
TEST_F(Conditions, HoldsComparesTheObjectWithoutBlanksInAnyCase) {
  for (const char* holding : {"lamp Holds LEDBULB", "lamp !HOLDS oldbulb", "vase holds "}) EXPECT_TRUE(holds(holding)) << holding;
  for (const char* failing : {"lamp holds led bulb", "lamp !holds ledbulb"}) EXPECT_FALSE(holds(failing)) << failing;
}

TEST_F(Conditions, EveryLineMustHoldAndTheFirstFalseOneEndsTheTest) {
  EXPECT_TRUE(holds("tap state 1\r\nlamp holds ledbulb\r\n"));  // no empty line after the last line end
  EXPECT_FALSE(holds("tap state 1\r\nlamp holds oldbulb"));
  EXPECT_FALSE(holds("tap state 0\r\nsofa state 1"));  // the unknown sofa is never looked up
  for (const char* broken : {"", "tap", "tap state", "tap state 1\r\nsofa state 1"})
    EXPECT_THROW(holds(broken), RuntimeFailure) << broken;
}

// Line positions are 16-bit: a next line may start at 32767, not past it. A last line may be longer.
TEST_F(Conditions, ALineThatWouldStartPast32767IsAnOverflow) {
  const auto padded = [](qsizetype length) { return QStringLiteral("tap state 1").leftJustified(length) + QStringLiteral("\r\n"); };
  EXPECT_EQ(EvalConditions(padded(32764) + QStringLiteral("tap state 1")), kTrue);
  EXPECT_EQ(failureOf([&] { EvalConditions(padded(32765) + QStringLiteral("tap state 1")); }), Failure::Overflow);
  EXPECT_EQ(EvalConditions(QStringLiteral("tap state 1").leftJustified(40000)), kTrue);
}

}  // namespace
}  // namespace fh::test
