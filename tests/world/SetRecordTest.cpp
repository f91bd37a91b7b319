#include "WorldFixtures.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

QByteArray text64(const QByteArray& text) { return text + QByteArray(64 - text.size(), ' '); }

QByteArray i16Bytes(int value) {
  const char bytes[2] = {static_cast<char>(value & 0xFF), static_cast<char>((value >> 8) & 0xFF)};
  return QByteArray(bytes, 2);
}

TEST(RecordBytes, SetWithOneEmptyShotIsTheKnown271Bytes) {
  const QByteArray expected = "Set" + text64("A") + i16Bytes(1) + i16Bytes(-1) +  //
                              "Shot" + text64("B") + QByteArray(128, ' ') + i16Bytes(0) + i16Bytes(0);
  EXPECT_EQ(expected.size(), 271);
  EXPECT_EQ(savedBytes(makeSet(QStringLiteral("A"), {makeShot(QStringLiteral("B"))})), expected);
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
  EXPECT_EQ(savedBytes(loadedFrom<cHotSpot>(expected)), expected);

  QByteArray one = expected;
  one[17] = 1;  // any value but 0 is true, and is written back as it was read
  EXPECT_TRUE(loadedFrom<cHotSpot>(one).Quiet);
  EXPECT_EQ(savedBytes(loadedFrom<cHotSpot>(one)), one);
}

TEST(FixedTexts, SixtyFourCharactersSurviveAndASixtyFifthIsCut) {
  const QString full(64, u'x');
  EXPECT_EQ(loadedFrom<cSet>(savedBytes(makeSet(full + u'y'))).sName, full);
  EXPECT_EQ(loadedFrom<cHotSpot>(savedBytes(*makeHotSpot(full, {full, full + u'z'}))).ScriptLines, QStringList({full, full}));
}

TEST(FixedTexts, OnlyBlanksVanishAndLeadingOnesUnlessTheReaderKeepsThem) {
  const QByteArray bytes = savedBytes(*makeHotSpot("  Door  ", {"   indented", "    ", QStringLiteral("\ttab\u00A0")}));
  const cHotSpot trimmed = loadedFrom<cHotSpot>(bytes);
  EXPECT_EQ(trimmed.Name, QStringLiteral("Door"));
  EXPECT_EQ(trimmed.NumScriptLines, 3);  // the all-blank line still counts
  EXPECT_EQ(trimmed.ScriptLines, QStringList({QStringLiteral("indented"), QString(), QStringLiteral("\ttab\u00A0")}));

  const cHotSpot kept = loadedFrom<cHotSpot>(bytes, SetReading{.keepLeadingBlanks = true});
  EXPECT_EQ(kept.Name, QStringLiteral("  Door"));
  EXPECT_EQ(kept.ScriptLines.first(), QStringLiteral("   indented"));
}

TEST(FixedTexts, WesternCharactersTakeOneByteEach) {
  const QString name = QStringLiteral("Caf\u00E9 \u20AC5 \u2019s");
  const QByteArray bytes = savedBytes(makeSet(name));
  EXPECT_EQ(bytes.mid(3, 10), QByteArray("Caf\xE9 \x80" "5 \x92s"));
  EXPECT_EQ(loadedFrom<cSet>(bytes).sName, name);
}

}  // namespace
}  // namespace fh::test
