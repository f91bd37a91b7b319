#include "WorldBuild.h"
#include "WorldDump.h"
#include "WorldFixtures.h"

#include "TempFolder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

using fhset::buildSet;
using fhset::dumpSetFile;

fhset::Dump dump(const QByteArray& bytes) { return dumpSetFile(bytes, QStringLiteral("world.set")); }

QByteArray rebuilt(const QByteArray& bytes) {
  const QString text = dump(bytes).text;
  const fhset::Built built = buildSet(text.toUtf8(), QStringLiteral("world.txt"));
  EXPECT_EQ(built.problems, QStringList()) << text.toStdString();
  return built.set ? savedBytes(*built.set) : QByteArray();
}

// The fuzz seeds come in pairs: a world file and its dump, which also shows the text form.
TEST(FhsetText, SeedWorldsAndTheirTextsAreEachOthersImage) {
  const QDir seeds(QStringLiteral(FH_SEEDS_FOLDER));
  const QStringList worlds = seeds.entryList({QStringLiteral("*.set")});
  ASSERT_GE(worlds.size(), 3);
  for (const QString& world : worlds) {
    const QByteArray bytes = fileBytes(seeds.filePath(world));
    const QByteArray text = fileBytes(seeds.filePath(QString(world).replace(QStringLiteral(".set"), QStringLiteral(".txt"))));
    EXPECT_EQ(dumpSetFile(bytes, world).text.toUtf8(), text) << world.toStdString();
    const fhset::Built built = buildSet(text, world);
    ASSERT_TRUE(built.set) << world.toStdString();
    EXPECT_EQ(savedBytes(*built.set), bytes) << world.toStdString();
  }
}

TEST(FhsetText, EveryWorldTheProgramWritesComesBackByteForByte) {
  EXPECT_EQ(rebuilt(savedBytes(sampleSet())), savedBytes(sampleSet()));

  // What an author may have typed: leading blanks, quotes, backslashes, control and Western characters.
  auto odd = makeHotSpot(QStringLiteral("  spaced"), {QStringLiteral("   indented"), QStringLiteral("\"quoted\" \\ path\\x41"),
                                                      QStringLiteral("tab\there"), QStringLiteral("\u00A0\u20AC \u00E9\u0081"),
                                                      QString(64, u'x'), QStringLiteral("#not a comment")});
  odd->Icon = -32768;
  auto shot = makeShot(QString(), {odd});
  shot->ShotToLeft = QStringLiteral("\"");
  shot->sHeader = QString::fromLatin1("S\0 t", 4);
  const cSet set = makeSet(QStringLiteral(" "), {shot});
  EXPECT_EQ(rebuilt(savedBytes(set)), savedBytes(set));
}

// A foreign file may hold a flag as 1, or any value but -1, which the game takes as true: the game
// and the text form both write it back as it was.
TEST(FhsetText, FlagsThatAreNeitherMinusOneNorZeroComeBackAsTheyWere) {
  QByteArray bytes = savedBytes(sampleSet());
  bytes[71 + 196] = 1;  // the porch's elapsed-time
  bytes[71 + 196 + 1] = 0;
  bytes[71 + 200 + 19] = 2;  // the front door's enabled
  bytes[71 + 200 + 19 + 1] = 0;
  EXPECT_EQ(savedBytes(loadedFrom<cSet>(bytes)), bytes);
  const QString text = dump(bytes).text;
  EXPECT_TRUE(text.contains(QStringLiteral("\n  elapsed-time 1\n")) && text.contains(QStringLiteral("\n    enabled 2\n"))) << text.toStdString();
  EXPECT_EQ(rebuilt(bytes), bytes);
}

TEST(FhsetText, DumpOfADamagedFileSaysWhereAndKeepsWhatItRead) {
  QByteArray bytes = savedBytes(sampleSet());
  const fhset::Dump cut = dump(bytes.left(71 + 200 + 30));
  EXPECT_TRUE(cut.text.contains(QStringLiteral("\nshot Porch\n")) && cut.text.contains(QStringLiteral("\n  to-left Garden\n")));
  EXPECT_EQ(cut.damage, QStringList({QStringLiteral("byte 67: the set counts 2 shots; the reading stops after 0 of them"),
                                     QStringLiteral("byte 269: shot 0 (Porch) counts 2 hotspots; the reading stops after 0 of them"),
                                     QStringLiteral("byte 301: the file ends 30 bytes into hotspot 0 of shot 0; "
                                                    "the fields it doesn't reach are defaults")}));
  EXPECT_EQ(dump(bytes.left(71)).damage.last(), QStringLiteral("byte 71: the file ends where shot 0 should begin; its fields are defaults"));
  EXPECT_EQ(dump(bytes + "xyz").damage,
            QStringList({QStringLiteral("byte %1: 3 bytes follow the end of the set; the game never reads them, "
                                        "and they are left out here").arg(bytes.size())}));
  bytes[71 + 198] = '\xFF';
  bytes[71 + 199] = '\xFF';
  EXPECT_EQ(dump(bytes).damage.last(), "byte 269: shot 0 (Porch) counts -1 hotspots; a negative count can't be read, and the reading stops there");
}

}  // namespace
}  // namespace fh::test
