#include "WorldFixtures.h"

#include "FailureOf.h"
#include "ScriptedUi.h"
#include "platform/base/Failure.h"

#include <gtest/gtest.h>

#include <optional>

namespace fh::test {
namespace {

// Reads into `set` and gives the failure that the reading ended with, if any.
std::optional<Failure> loadInto(cSet& set, const QByteArray& bytes) {
  ByteFile file = ByteFile::fromBytes(bytes);
  try {
    set.Load(file);
  } catch (const RuntimeFailure& failure) {
    return failure.kind();
  }
  return std::nullopt;
}

std::vector<QString> mismatchTitles(const ScriptedUi& ui) {
  std::vector<QString> titles;
  for (const Shown& box : ui.messageBoxes()) {
    EXPECT_EQ(box.text, QStringLiteral("File badness"));
    EXPECT_EQ(box.buttons, Buttons::Ok);
    titles.push_back(box.title);
  }
  return titles;
}

TEST(HeaderMismatch, EachWrongTagIsToldKeptAndReadPast) {
  QByteArray bad = savedBytes(sampleSet());
  bad.replace(0, 3, "Sex");
  bad.replace(71, 4, "SHOT");
  bad.replace(71 + 200, 7, "Hotspot");  // case counts
  ScriptedUi ui;
  cSet set;
  EXPECT_EQ(loadInto(set, bad), std::nullopt);
  EXPECT_EQ(mismatchTitles(ui), std::vector<QString>({"Set header mismatch", "Shot header mismatch", "HotSpot header mismatch"}));
  EXPECT_EQ(set.Shots[0]->HotSpots[0]->Name, QStringLiteral("FrontDoor"));
  EXPECT_EQ(savedBytes(set), bad);  // the bad tags are written back as they were read
}

// Each of the first nine is told and read past; the tenth is told too, and then the file is given up.
TEST(HeaderMismatch, TheTenthInOneFileEndsTheReading) {
  QByteArray zeros = savedBytes(makeSet(QStringLiteral("Z")));
  zeros[67] = 20;  // twenty shots, all zeros
  zeros += QByteArray(20 * cShot::kEmptyRecordSize, '\0');
  ScriptedUi ui;
  ByteFile file = ByteFile::fromBytes(zeros, QStringLiteral("C:\\Fernhollow\\Database\\Zeros.set"));
  cSet set;
  QString message;
  EXPECT_EQ(failureOf([&] { set.Load(file); }, &message), Failure::InvalidFileFormat);
  EXPECT_TRUE(message.contains(QStringLiteral("C:\\Fernhollow\\Database\\Zeros.set is damaged"))) << message.toStdString();
  EXPECT_EQ(mismatchTitles(ui), std::vector<QString>(10, QStringLiteral("Shot header mismatch")));
  EXPECT_EQ(ui.messageBoxes()[0].details, "The record at byte 71 of C:\\Fernhollow\\Database\\Zeros.set should begin with \"Shot\".");
  EXPECT_TRUE(ui.messageBoxes()[9].details.startsWith(QStringLiteral("The record at byte 1871 of")));
}

TEST(DamagedFiles, EveryCutShortFileEndsInInputPastEndOfFile) {
  const QByteArray whole = savedBytes(sampleSet());
  for (qsizetype length = 0; length < whole.size(); ++length) {
    cSet set;
    ASSERT_EQ(loadInto(set, whole.left(length)), Failure::InputPastEndOfFile) << "cut at " << length;
  }
}

TEST(DamagedFiles, NegativeCountsFailAndStayAsRead) {
  const QByteArray whole = savedBytes(sampleSet());
  struct Case { qsizetype at; i16 (*countIn)(const cSet&); };
  const Case cases[] = {
      {67, [](const cSet& s) { return s.nNumShots; }},
      {71 + 198, [](const cSet& s) { return s.Shots[0]->NumHotSpots; }},
      {71 + 200 + 149, [](const cSet& s) { return s.Shots[0]->HotSpots[0]->NumScriptLines; }},
  };
  for (const Case& c : cases) {
    QByteArray bad = whole;
    bad[c.at] = '\xFE';
    bad[c.at + 1] = '\xFF';
    cSet set;
    EXPECT_EQ(loadInto(set, bad), Failure::SubscriptOutOfRange) << "count at " << c.at;
    EXPECT_EQ(c.countIn(set), -2) << "count at " << c.at;
  }
}

TEST(DamagedFiles, HugeCountInAShortFileMakesNoMoreThanTheBytesHold) {
  QByteArray bytes = savedBytes(makeSet(QStringLiteral("S"))) + savedBytes(*makeShot(QStringLiteral("only")));
  bytes[67] = '\xFF';
  bytes[68] = '\x7F';  // 32767 shots
  cSet set;
  EXPECT_EQ(loadInto(set, bytes), Failure::InputPastEndOfFile);
  EXPECT_EQ(set.nNumShots, 32767);
  EXPECT_EQ(set.Shots.size(), 2u);  // the shot that was there, and the one the file ended in
  EXPECT_LE(set.Shots.capacity(), 2u);
}

}  // namespace
}  // namespace fh::test
