#include "platform/base/Failure.h"
#include "platform/base/Values.h"

#include "FailureOf.h"

#include <gtest/gtest.h>

using namespace fh;
using fh::test::failureOf;

TEST(Int16, ArithmeticOverflowsAtTheSixteenBitLimits) {
  EXPECT_EQ(addI16(32766, 1), 32767);
  EXPECT_EQ(failureOf([] { addI16(32767, 1); }), Failure::Overflow);
  EXPECT_EQ(subI16(-32767, 1), -32768);
  EXPECT_EQ(failureOf([] { subI16(-32768, 1); }), Failure::Overflow);
  EXPECT_EQ(failureOf([] { toI16(40000); }), Failure::Overflow);
}

TEST(CIntConversion, RoundsHalfToEven) {
  const std::pair<double, int> cases[] = {{1.5, 2}, {2.5, 2}, {-2.5, -2}, {2.5001, 3}, {32767.4, 32767}, {-32768.4, -32768}};
  for (const auto& [value, rounded] : cases) EXPECT_EQ(CInt(value), rounded) << value;
  EXPECT_EQ(failureOf([] { CInt(32767.5); }), Failure::Overflow);
}

TEST(CIntConversion, TextMustBeANumberInRange) {
  EXPECT_EQ(CInt(QStringLiteral(" 12 ")), 12);
  EXPECT_EQ(CInt(QStringLiteral("2.5")), 2);
  EXPECT_EQ(CInt(QStringLiteral("&H10")), 16);
  for (const char* text : {"", "12abc"}) EXPECT_EQ(failureOf([text] { CInt(QString::fromLatin1(text)); }), Failure::TypeMismatch) << text;
  EXPECT_EQ(failureOf([] { CInt(QStringLiteral("40000")); }), Failure::Overflow);
}

TEST(ValParsing, TakesTheLeadingNumberOnly) {
  // Blanks inside a number are passed over.
  const std::pair<const char*, double> cases[] = {{"1abc", 1},    {"abc", 0},     {"  -3.5kg", -3.5}, {"1 2 3", 123},
                                                  {"2e3x", 2000}, {"&HFF", 255}, {"&O17", 15},       {"-", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(QString::fromLatin1(text)), value) << text;
}

TEST(NumberPatterns, ThousandsPatternRoundsAndShowsNothingForZero) {
  const std::pair<double, const char*> cases[] = {{0, ""}, {0.4, ""}, {1000, "1,000"}, {1234567.5, "1,234,568"}, {-4321, "-4,321"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(formatThousands(value), QString::fromLatin1(text)) << value;
}

TEST(NumberPatterns, ClockShowsTimeOfDayAndWrapsAtTwentyFourHours) {
  const std::pair<double, const char*> cases[] = {
      {0, "0:00:00"}, {(3600.0 * 13 + 60 * 5 + 9) / 86400, "13:05:09"}, {1.0, "0:00:00"}, {1.0 + 61.0 / 86400, "0:01:01"},
      {86399.6 / 86400, "0:00:00"}};
  for (const auto& [days, text] : cases) EXPECT_EQ(formatClock(days), QString::fromLatin1(text)) << days;
}
