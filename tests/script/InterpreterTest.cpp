#include "ScriptedUi.h"
#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "script/Interpreter.h"
#include "world/Condition.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

// Records every condition an `if` asks: those that start with "false" fail, all others hold. What
// was asked shows which `if` lines ran; "startset" lines show the others through StartSetFile.
class ScriptTest : public testing::Test {
 protected:
  void SetUp() override {
    StartSetFile.clear();
    setConditionTest([this](const QString& condition) { return ask(condition); });
  }
  void TearDown() override { setConditionTest({}); }

  i16 ask(const QString& condition) {
    asked.append(condition);
    return condition.startsWith(QLatin1StringView("false")) ? kFalse : kTrue;
  }
  static QString script(const QStringList& lines) { return lines.join(QStringLiteral("\r\n")); }
  static Failure failureOf(const QString& text) {
    try { RunScript(text); } catch (const RuntimeFailure& failure) { return failure.kind(); }
    ADD_FAILURE() << "the script ran through";
    return {};
  }

  ScriptedUi ui;
  QStringList asked;
};

using SkipRules = ScriptTest;
using LineSplitting = ScriptTest;
using WordSplitting = ScriptTest;

TEST_F(SkipRules, FalseBlockStopsAtFirstEndifWhoeverItIs) {
  RunScript(script({"if false outer x", "if false inner x", "startset skipped", "endif", "if seen tail x", "endif"}));
  EXPECT_EQ(asked, QStringList({"false outer x", "seen tail x"}));
  EXPECT_TRUE(StartSetFile.isEmpty());
  EXPECT_TRUE(ui.shown().empty());
}

TEST_F(SkipRules, InnerEndifOfTrueBlockIsHarmless) {
  RunScript(script({"if seen outer x", "if false inner x", "if seen skipped x", "endif", "if seen tail x", "endif"}));
  EXPECT_EQ(asked, QStringList({"seen outer x", "false inner x", "seen tail x"}));
  EXPECT_TRUE(ui.shown().empty());
}

TEST_F(SkipRules, UnterminatedBlockWarnsOnceAndTrueIfNeedsNoEndif) {
  RunScript(script({"if seen a b", "if false c d", "if false e f", "", "startset skipped"}));
  EXPECT_EQ(asked, QStringList({"seen a b", "false c d"}));
  ASSERT_EQ(ui.messageBoxes().size(), 1u);
  EXPECT_EQ(ui.messageBoxes().front().text, "If block without EndIf");
  EXPECT_EQ(ui.messageBoxes().front().title, kAppTitle);
}

TEST_F(SkipRules, EndifEndsSkipInAnyCaseButOnlyAsTheWholeLine) {
  RunScript(script({"if false a b", "EndIf", "startset one", "if false c d", "endif ", " endif", "startset two"}));
  EXPECT_EQ(StartSetFile, "one");
  EXPECT_EQ(ui.messageBoxes().size(), 1u);
}

// A script started from inside a line (as from a modal screen) keeps its skip flag to itself.
TEST_F(SkipRules, EachScriptHasItsOwnSkipFlag) {
  setConditionTest([this](const QString& condition) {
    if (condition.startsWith(QLatin1StringView("nested"))) RunScript(QStringLiteral("if false inner x"));
    return ask(condition);
  });
  RunScript(script({"if nested a b", "if seen after x"}));
  EXPECT_EQ(asked, QStringList({"false inner x", "nested a b", "seen after x"}));
  EXPECT_EQ(ui.messageBoxes().size(), 1u);
}

TEST_F(LineSplitting, EmptyScriptAndEmptyLinesDoNothing) {
  RunScript(QString());
  RunScript(script({"", "if false a b", "", "endif", "", "if seen c d", ""}));
  EXPECT_EQ(asked, QStringList({"false a b", "seen c d"}));
  EXPECT_TRUE(ui.shown().empty());
}

// The position steps two characters behind a carriage return without looking at what stands there.
TEST_F(LineSplitting, CarriageReturnAloneCostsNextCharacterAndLineFeedAloneEndsNoLine) {
  RunScript(QStringLiteral("startset first\rstartset lost\rxif seen a b\nif seen c d"));
  EXPECT_EQ(StartSetFile, "first");
  EXPECT_EQ(asked, QStringList({"seen a b\nif"}));
}

// Positions are 16-bit: from 32767 characters on, the script fails where the last line's end lies,
// after every line before it has run.
TEST_F(LineSplitting, ScriptOf32767CharactersOverflows) {
  const auto scriptOfLength = [](int length) {
    const QString head = QStringLiteral("startset early\r\n"), tail = QStringLiteral("\r\nstartset late");
    return head + QString(length - head.size() - tail.size(), u'x') + tail;
  };
  RunScript(scriptOfLength(32766));
  EXPECT_EQ(StartSetFile, "late");
  EXPECT_EQ(failureOf(scriptOfLength(32767)), Failure::Overflow);
  EXPECT_EQ(StartSetFile, "early");
}

TEST_F(WordSplitting, OnlySingleBlanksSeparateAndEveryWordIsLowerCased) {
  for (const char* line : {"IF Seen  Kitchen\tTap extra", "if seen a", "if\tseen a b", " if seen a b", "StartSet Fernhollow.SET"})
    RunScriptLine(QString::fromLatin1(line));
  EXPECT_EQ(asked, QStringList({"seen  kitchen\ttap", "seen a "}));
  EXPECT_EQ(StartSetFile, "fernhollow.set");
}

TEST_F(WordSplitting, TooFewWordsFailAtTheLineAndEarlierLinesStand) {
  EXPECT_EQ(failureOf(script({"startset first", "if seen", "startset second"})), Failure::SubscriptOutOfRange);
  EXPECT_EQ(StartSetFile, "first");
}

// The game's own condition test isn't there yet, and it must not answer as though it were.
TEST(ConditionTest, GamesOwnTestFailsUntilContainersAreLive) {
  setConditionTest({});
  EXPECT_THROW(RunScriptLine(QStringLiteral("if tap state 1")), RuntimeFailure);
}

}  // namespace
}  // namespace fh::test
