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

TEST(CheckupText, FiftyCharactersStayOnOneLinePaddedToFiftyFive) {
  const QString text(50, QLatin1Char('x'));
  EXPECT_EQ(CheckupTextLines(text), QStringList{text + QString(5, QLatin1Char(' '))});
}

TEST(CheckupText, LongerTextBreaksAtTheLastBlankWithinFifty) {
  const QString first = QString(44, QLatin1Char('a')) + QStringLiteral(" bbbb ");  // 50, ends in a blank
  const QStringList lines = CheckupTextLines(first + QStringLiteral("cc dd"));
  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(lines[0], first);
  EXPECT_EQ(lines[1], QString(14, QLatin1Char(' ')) + QStringLiteral("cc dd") + QString(50, QLatin1Char(' ')));
}

TEST(CheckupText, TextThatCannotBeBrokenStopsThePrintout) {
  EXPECT_THROW(CheckupTextLines(QString(51, QLatin1Char('x'))), RuntimeFailure);
  EXPECT_THROW(CheckupTextLines(QStringLiteral("a ") + QString(56, QLatin1Char('x'))), RuntimeFailure);
  EXPECT_NO_THROW(CheckupTextLines(QStringLiteral("a ") + QString(55, QLatin1Char('x'))));
}

}  // namespace
}  // namespace fh::test
