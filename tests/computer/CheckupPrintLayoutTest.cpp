#include "computer/CheckupPrintLayout.h"

#include "platform/base/Failure.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

TEST(CheckupNumbers, PartsAreLettersAndTheNumberStandsRightInThreePlaces) {
  EXPECT_EQ(CheckupNumberText(7, 0), QStringLiteral("7"));
  EXPECT_EQ(CheckupNumberText(12, 2), QStringLiteral("12b"));
  EXPECT_EQ(CheckupLabel(QStringLiteral("7")), QStringLiteral("Question   7"));
  EXPECT_EQ(CheckupLabel(QStringLiteral("12b")), QStringLiteral("Question 12b"));
  EXPECT_THROW(CheckupLabel(QStringLiteral("100a")), RuntimeFailure);
}

// How the text is laid out is seen in the printout itself; a text that can't be broken stops it.
TEST(CheckupText, TextThatCannotBeBrokenStopsThePrintout) {
  EXPECT_THROW(CheckupTextLines(QString(51, QLatin1Char('x'))), RuntimeFailure);
  EXPECT_THROW(CheckupTextLines(QStringLiteral("a ") + QString(56, QLatin1Char('x'))), RuntimeFailure);
  EXPECT_NO_THROW(CheckupTextLines(QStringLiteral("a ") + QString(55, QLatin1Char('x'))));
}

}  // namespace
}  // namespace fh::test
