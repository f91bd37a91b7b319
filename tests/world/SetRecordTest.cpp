#include "WorldFixtures.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

QByteArray text64(const QByteArray& text) { return text + QByteArray(64 - text.size(), ' '); }

QByteArray i16Bytes(int value) {
  const char bytes[2] = {static_cast<char>(value & 0xFF), static_cast<char>((value >> 8) & 0xFF)};
  return QByteArray(bytes, 2);
}

TEST(RecordBytes, EmptyRecordsHaveTheirFixedSizes) {
  EXPECT_EQ(savedBytes(cSet()).size(), 71);
  EXPECT_EQ(savedBytes(cShot()).size(), 200);
  EXPECT_EQ(savedBytes(cHotSpot()).size(), 151);
  EXPECT_EQ(savedBytes(*makeHotSpot(QStringLiteral("x"), {QStringLiteral("a"), QStringLiteral("b")})).size(), 151 + 2 * 64);
}

TEST(RecordBytes, SetWithOneEmptyShotIsTheKnown271Bytes) {
  const cSet set = makeSet(QStringLiteral("A"), {makeShot(QStringLiteral("B"))});
  const QByteArray expected = "Set" + text64("A") + i16Bytes(1) + i16Bytes(-1) +  //
                              "Shot" + text64("B") + QByteArray(128, ' ') + i16Bytes(0) + i16Bytes(0);
  EXPECT_EQ(expected.size(), 271);
  EXPECT_EQ(savedBytes(set), expected);
}

TEST(RecordBytes, HotSpotFieldsStandInTheirOrderWithHeightBeforeWidth) {
  auto hotSpot = makeHotSpot(QStringLiteral("N"), {QStringLiteral("L")});
  hotSpot->Left = 1;
  hotSpot->Top = 2;
  hotSpot->Height = 3;
  hotSpot->Width = 4;
  hotSpot->Icon = -300;
  hotSpot->Quiet = true;
  hotSpot->Enabled = false;
  hotSpot->Rollover = QStringLiteral("R");
  const QByteArray expected = "HotSpot" + i16Bytes(1) + i16Bytes(2) + i16Bytes(3) + i16Bytes(4) + i16Bytes(-300) +
                              i16Bytes(-1) + i16Bytes(0) + text64("N") + text64("R") + i16Bytes(1) + text64("L");
  EXPECT_EQ(savedBytes(*hotSpot), expected);

  const cHotSpot back = loadedFrom<cHotSpot>(expected);
  EXPECT_EQ(back.Height, 3);
  EXPECT_EQ(back.Width, 4);
  EXPECT_EQ(back.Icon, -300);
  EXPECT_TRUE(back.Quiet);
  EXPECT_FALSE(back.Enabled);
}

TEST(RecordBytes, AnyNonZeroBooleanReadsTrue) {
  QByteArray bytes = savedBytes(cHotSpot());
  bytes[17] = 1;  // Quiet
  EXPECT_TRUE(loadedFrom<cHotSpot>(bytes).Quiet);
}

TEST(RecordBytes, WorldSurvivesSaveAndLoad) {
  const QByteArray bytes = savedBytes(sampleSet());
  const cSet back = loadedFrom<cSet>(bytes);
  EXPECT_EQ(savedBytes(back), bytes);
  ASSERT_EQ(back.nNumShots, 2);
  ASSERT_EQ(back.Shots.size(), 2u);
  EXPECT_EQ(back.nCurrentShot, 1);
  const cShot& porch = *back.Shots[0];
  EXPECT_EQ(porch.ShotToLeft, QStringLiteral("Garden"));
  EXPECT_TRUE(porch.GoElapsedTime);
  ASSERT_EQ(porch.HotSpots.size(), 2u);
  EXPECT_EQ(porch.HotSpots[0]->ScriptLines, QStringList({QStringLiteral("goto shot hall"), QStringLiteral("playlocal door")}));
  EXPECT_EQ(porch.HotSpots[1]->Icon, -3);
}

TEST(FixedTexts, SixtyFourCharactersSurviveAndASixtyFifthIsCut) {
  const QString full(64, u'x');
  const cSet back = loadedFrom<cSet>(savedBytes(makeSet(full + u'y')));
  EXPECT_EQ(back.sName, full);

  const auto hotSpot = makeHotSpot(full, {full, full + u'z'});
  const cHotSpot line = loadedFrom<cHotSpot>(savedBytes(*hotSpot));
  EXPECT_EQ(line.Name, full);
  EXPECT_EQ(line.ScriptLines, QStringList({full, full}));
}

TEST(FixedTexts, BlanksVanishFromBothEndsButOnlyBlanks) {
  const auto hotSpot = makeHotSpot(QStringLiteral("  Door  "), {QStringLiteral("   indented"), QStringLiteral("\ttab"),
                                                                QStringLiteral("\u00A0no-break")});
  const cHotSpot back = loadedFrom<cHotSpot>(savedBytes(*hotSpot));
  EXPECT_EQ(back.Name, QStringLiteral("Door"));
  EXPECT_EQ(back.ScriptLines,
            QStringList({QStringLiteral("indented"), QStringLiteral("\ttab"), QStringLiteral("\u00A0no-break")}));
}

TEST(FixedTexts, ReaderCanKeepLeadingBlanks) {
  ByteFile file = ByteFile::fromBytes(savedBytes(*makeHotSpot(QStringLiteral("  Door  "), {QStringLiteral("   indented")})));
  cHotSpot back;
  back.Load(file, SetReading{.keepLeadingBlanks = true});
  EXPECT_EQ(back.Name, QStringLiteral("  Door"));
  EXPECT_EQ(back.ScriptLines, QStringList({QStringLiteral("   indented")}));
}

TEST(FixedTexts, AllBlankLineReadsEmptyAndStillCounts) {
  const auto hotSpot = makeHotSpot(QStringLiteral("h"), {QStringLiteral("a"), QStringLiteral("    "), QString()});
  const cHotSpot back = loadedFrom<cHotSpot>(savedBytes(*hotSpot));
  EXPECT_EQ(back.NumScriptLines, 3);
  EXPECT_EQ(back.ScriptLines, QStringList({QStringLiteral("a"), QString(), QString()}));
}

TEST(FixedTexts, WesternCharactersTakeOneByteEach) {
  const QString name = QStringLiteral("Caf\u00E9 \u20AC5 \u2019s");
  const QByteArray bytes = savedBytes(makeSet(name));
  EXPECT_EQ(bytes.mid(3, 10), QByteArray("Caf\xE9 \x80" "5 \x92s"));
  EXPECT_EQ(loadedFrom<cSet>(bytes).sName, name);
}

}  // namespace
}  // namespace fh::test
