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
  EXPECT_EQ(CInt(1.5), 2);
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(2.5001), 3);
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(failureOf([] { CInt(32767.5); }), Failure::Overflow);
  EXPECT_EQ(CInt(-32768.4), -32768);
}

TEST(CIntConversion, TextMustBeANumberInRange) {
  EXPECT_EQ(CInt(QStringLiteral(" 12 ")), 12);
  EXPECT_EQ(CInt(QStringLiteral("2.5")), 2);
  EXPECT_EQ(CInt(QStringLiteral("&H10")), 16);
  EXPECT_EQ(failureOf([] { CInt(QStringLiteral("")); }), Failure::TypeMismatch);
  EXPECT_EQ(failureOf([] { CInt(QStringLiteral("12abc")); }), Failure::TypeMismatch);
  EXPECT_EQ(failureOf([] { CInt(QStringLiteral("40000")); }), Failure::Overflow);
}

TEST(ValParsing, TakesTheLeadingNumberOnly) {
  EXPECT_EQ(Val(QStringLiteral("1abc")), 1);
  EXPECT_EQ(Val(QStringLiteral("abc")), 0);
  EXPECT_EQ(Val(QStringLiteral("  -3.5kg")), -3.5);
  EXPECT_EQ(Val(QStringLiteral("1 2 3")), 123);  // blanks inside a number are passed over
  EXPECT_EQ(Val(QStringLiteral("2e3x")), 2000);
  EXPECT_EQ(Val(QStringLiteral("&HFF")), 255);
  EXPECT_EQ(Val(QStringLiteral("&O17")), 15);
  EXPECT_EQ(Val(QStringLiteral("-")), 0);
}

TEST(NumberPatterns, ThousandsPatternRoundsAndShowsNothingForZero) {
  EXPECT_EQ(formatThousands(0), QString());
  EXPECT_EQ(formatThousands(0.4), QString());
  EXPECT_EQ(formatThousands(1000), QStringLiteral("1,000"));
  EXPECT_EQ(formatThousands(1234567.5), QStringLiteral("1,234,568"));
  EXPECT_EQ(formatThousands(-4321), QStringLiteral("-4,321"));
}

TEST(NumberPatterns, ClockShowsTimeOfDayAndWrapsAtTwentyFourHours) {
  EXPECT_EQ(formatClock(0), QStringLiteral("0:00:00"));
  EXPECT_EQ(formatClock((3600.0 * 13 + 60 * 5 + 9) / 86400), QStringLiteral("13:05:09"));
  EXPECT_EQ(formatClock(1.0), QStringLiteral("0:00:00"));
  EXPECT_EQ(formatClock(1.0 + 61.0 / 86400), QStringLiteral("0:01:01"));
  EXPECT_EQ(formatClock(86399.6 / 86400), QStringLiteral("0:00:00"));
}
