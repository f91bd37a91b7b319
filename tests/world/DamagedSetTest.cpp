#include "WorldFixtures.h"

#include "ScriptedUi.h"
#include "platform/Failure.h"

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

std::vector<QString> titlesOf(const ScriptedUi& ui) {
  std::vector<QString> titles;
  for (const Shown& box : ui.messageBoxes()) {
    EXPECT_EQ(box.text, QStringLiteral("File badness"));
    EXPECT_EQ(box.buttons, Buttons::Ok);
    titles.push_back(box.title);
  }
  return titles;
}

TEST(HeaderMismatch, EachWrongTagIsToldAndTheReadingGoesOn) {
  const QByteArray good = savedBytes(sampleSet());
  QByteArray bad = good;
  bad.replace(0, 3, "Sex");
  bad.replace(71, 4, "SHOT");                    // the first shot
  bad.replace(71 + 200, 7, "Hotspot");           // its first hotspot: the check minds case
  ScriptedUi ui;
  cSet set;
  EXPECT_EQ(loadInto(set, bad), std::nullopt);

  EXPECT_EQ(titlesOf(ui), std::vector<QString>({QStringLiteral("Set header mismatch"), QStringLiteral("Shot header mismatch"),
                                                QStringLiteral("HotSpot header mismatch")}));
  EXPECT_EQ(set.sHeader, QStringLiteral("Sex"));
  EXPECT_EQ(set.Shots[0]->sHeader, QStringLiteral("SHOT"));
  EXPECT_EQ(set.Shots[0]->HotSpots[0]->Name, QStringLiteral("FrontDoor"));
  // The bad tags are written back as they were read.
  EXPECT_EQ(savedBytes(set), bad);
}

TEST(HeaderMismatch, ForeignFileCascadesUntilItEnds) {
  QByteArray foreign;
  while (foreign.size() < 2000) foreign += "Dear diary, today the kettle boiled twice. ";
  ScriptedUi ui;
  cSet set;
  EXPECT_EQ(loadInto(set, foreign), Failure::InputPastEndOfFile);
  const std::vector<QString> titles = titlesOf(ui);
  ASSERT_GE(titles.size(), 2u);
  EXPECT_EQ(titles.front(), QStringLiteral("Set header mismatch"));
  EXPECT_EQ(titles[1], QStringLiteral("Shot header mismatch"));
}

// Records that a reading made, to hold against the bytes it was given.
qsizetype recordsMade(const cSet& set, qsizetype* lines) {
  qsizetype records = 0;
  *lines = 0;
  for (const auto& shot : set.Shots) {
    ++records;
    for (const auto& hotSpot : shot->HotSpots) {
      ++records;
      *lines += hotSpot->ScriptLines.size();
    }
  }
  return records;
}

TEST(DamagedFiles, EveryCutShortFileEndsInInputPastEndOfFile) {
  const QByteArray whole = savedBytes(sampleSet());
  for (qsizetype length = 0; length < whole.size(); ++length) {
    cSet set;
    ASSERT_EQ(loadInto(set, whole.left(length)), Failure::InputPastEndOfFile) << "cut at " << length;
    qsizetype lines = 0;
    // A record is made only when its parent's count has been read, and each takes at least 151 bytes,
    // but for the one being read when the file ended.
    EXPECT_LE(recordsMade(set, &lines), length / cHotSpot::kEmptyRecordSize + 2) << "cut at " << length;
    EXPECT_LE(lines * 64, length);
  }
}

TEST(DamagedFiles, NegativeCountsFailAndStayAsRead) {
  const QByteArray whole = savedBytes(sampleSet());
  struct Case {
    qsizetype at;
    i16 (*countIn)(const cSet&);
  };
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
  const cSet empty = makeSet(QStringLiteral("S"));
  QByteArray bytes = savedBytes(empty);
  bytes[67] = '\xFF';
  bytes[68] = '\x7F';  // 32767 shots
  bytes += savedBytes(*makeShot(QStringLiteral("only")));
  cSet set;
  EXPECT_EQ(loadInto(set, bytes), Failure::InputPastEndOfFile);
  EXPECT_EQ(set.nNumShots, 32767);
  EXPECT_EQ(set.Shots.size(), 2u);  // the shot that was there, and the one the file ended in
  EXPECT_LE(set.Shots.capacity(), 2u);
}

}  // namespace
}  // namespace fh::test
