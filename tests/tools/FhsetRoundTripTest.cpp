#include "WorldBuild.h"
#include "WorldDump.h"
#include "WorldFixtures.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

using fhset::buildSet;
using fhset::dumpSetFile;

// The bytes that building the dump of these bytes gives.
QByteArray rebuilt(const QByteArray& bytes) {
  const fhset::Dump dump = dumpSetFile(bytes, QStringLiteral("world.set"));
  const fhset::Built built = buildSet(dump.text.toUtf8(), QStringLiteral("world.txt"));
  EXPECT_EQ(built.problems, QStringList()) << dump.text.toStdString();
  return built.set ? savedBytes(*built.set) : QByteArray();
}

TEST(FhsetRoundTrip, DumpOfASmallWorldReadsAsDocumented) {
  auto door = makeHotSpot(QStringLiteral("FrontDoor"), {QStringLiteral("goto shot hall"), QString()});
  door->Left = 120;
  door->Height = 200;
  door->Rollover = QStringLiteral("showdialogstring front door");
  auto porch = makeShot(QStringLiteral("Porch"), {door});
  porch->ShotToRight = QStringLiteral("Hall");
  const fhset::Dump dump = dumpSetFile(savedBytes(makeSet(QStringLiteral("Fernhollow"), {porch})), QStringLiteral("F.set"));
  EXPECT_EQ(dump.damage, QStringList());
  EXPECT_EQ(dump.text, QStringLiteral(R"(# Fernhollow world file, text form of F.set
set Fernhollow
current-shot -1

shot Porch
  to-right Hall
  elapsed-time no

  hotspot FrontDoor
    left 120
    top 0
    width 0
    height 200
    icon 5
    quiet no
    enabled yes
    rollover showdialogstring front door
    do goto shot hall
    do
)"));
}

TEST(FhsetRoundTrip, EveryWorldTheProgramWritesComesBackByteForByte) {
  EXPECT_EQ(rebuilt(savedBytes(cSet())), savedBytes(cSet()));
  EXPECT_EQ(rebuilt(savedBytes(sampleSet())), savedBytes(sampleSet()));

  // What an author may have typed: leading blanks, quotes, backslashes, control and Western characters.
  auto odd = makeHotSpot(QStringLiteral("  spaced"), {QStringLiteral("   indented"), QStringLiteral("\"quoted\" \\ path\\x41"),
                                                      QStringLiteral("tab\there"), QStringLiteral("\u00A0\u20AC \u00E9\u0081"),
                                                      QString(64, u'x'), QStringLiteral("#not a comment")});
  odd->Icon = -32768;
  odd->Left = 32767;
  auto shot = makeShot(QString(), {odd});
  shot->ShotToLeft = QStringLiteral("\"");
  const cSet set = makeSet(QStringLiteral(" "), {shot});
  EXPECT_EQ(rebuilt(savedBytes(set)), savedBytes(set));
}

TEST(FhsetRoundTrip, WrongHeadersAreKeptAndTold) {
  QByteArray bytes = savedBytes(sampleSet());
  bytes.replace(0, 3, QByteArray("S\0 ", 3));
  bytes.replace(71, 4, "shot");
  const fhset::Dump dump = dumpSetFile(bytes, QStringLiteral("world.set"));
  EXPECT_EQ(dump.damage, QStringList({QStringLiteral("byte 0: the header of the set is \"S\\x00 \", not \"Set\""),
                                      QStringLiteral("byte 71: the header of shot 0 (Porch) is \"shot\", not \"Shot\"")}));
  EXPECT_TRUE(dump.text.contains(QStringLiteral("\n  header \"S\\x00 \"\n")));
  EXPECT_EQ(rebuilt(bytes), bytes);
}

TEST(FhsetDamage, ShortFileSaysWhereItEndsAndShowsWhatItRead) {
  const QByteArray whole = savedBytes(sampleSet());
  const fhset::Dump dump = dumpSetFile(whole.left(71 + 200 + 30), QStringLiteral("world.set"));
  EXPECT_TRUE(dump.text.contains(QStringLiteral("shot Porch")));
  EXPECT_TRUE(dump.damage.contains(QStringLiteral("byte 67: the set counts 2 shots; the reading stops after 0 of them")));
  EXPECT_TRUE(dump.damage.contains(
      QStringLiteral("byte 301: the file ends 30 bytes into hotspot 0 of shot 0; the fields it doesn't reach are defaults")));

  const fhset::Dump atBoundary = dumpSetFile(whole.left(71), QStringLiteral("world.set"));
  EXPECT_TRUE(atBoundary.damage.contains(QStringLiteral("byte 71: the file ends where shot 0 should begin; its fields are defaults")));
}

TEST(FhsetDamage, NegativeCountAndTrailingBytesAreTold) {
  QByteArray bytes = savedBytes(sampleSet());
  const fhset::Dump trailing = dumpSetFile(bytes + "xyz", QStringLiteral("world.set"));
  EXPECT_EQ(trailing.damage, QStringList({QStringLiteral("byte %1: 3 bytes follow the end of the set; the game never reads them, "
                                                         "and they are left out here").arg(bytes.size())}));
  bytes[71 + 198] = '\xFF';
  bytes[71 + 199] = '\xFF';
  const fhset::Dump negative = dumpSetFile(bytes, QStringLiteral("world.set"));
  EXPECT_TRUE(negative.damage.contains(
      QStringLiteral("byte 269: shot 0 (Porch) counts -1 hotspots; a negative count can't be read, and the reading stops there")));
}

}  // namespace
}  // namespace fh::test
