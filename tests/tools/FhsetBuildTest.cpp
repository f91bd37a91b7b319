#include "Fhset.h"
#include "WorldBuild.h"
#include "WorldFixtures.h"

#include "TempFolder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

using fhset::buildSet;

TEST(FhsetBuild, HandWrittenWorldTakesCountsFromItsRecordsAndDefaultsForTheRest) {
  const fhset::Built built = buildSet(
      "\xEF\xBB\xBF# authored by hand\r\n"
      "set House\r\n"
      "shot Kitchen\n"
      "\thotspot Tap\n"
      "\t\tdo   toggle tap   \n"
      "\t\tdo\n"
      "\thotspot Fridge\n"
      "shot Garden\n",
      QStringLiteral("house.txt"));
  ASSERT_EQ(built.problems, QStringList());
  const auto tap = makeHotSpot(QStringLiteral("Tap"), {QStringLiteral("toggle tap"), QString()});
  const cSet expected = makeSet("House", {makeShot("Kitchen", {tap, makeHotSpot("Fridge")}), makeShot("Garden")});
  EXPECT_EQ(savedBytes(*built.set), savedBytes(expected));
}

TEST(FhsetBuild, ProblemsAreToldWithTheirLinesAndNothingIsBuilt) {
  struct Case { const char* text; QString problem; };
  const Case cases[] = {
      {"left 5\n", "w.txt:1: 'left' belongs in a hotspot, and none is open here"},
      {"set S\nshot A\nhotspot H\nto-left B\n", "w.txt:4: 'to-left' belongs to a shot, whose fields come before its first hotspot"},
      {"set S\ncolour red\n", "w.txt:2: unknown key 'colour'; the keys here are current-shot, header, shot"},
      {"set S\ncurrent-shot 1\ncurrent-shot 2\n", "w.txt:3: 'current-shot' is given twice in this record; the first is on line 2"},
      {"set S\ncurrent-shot 32768\n", "w.txt:2: 32768 is out of range; numbers run from -32768 to 32767"},
      {"set S\nshot A\nhotspot H\ndo 12345678901234567890123456789012345678901234567890123456789012345\n",
       "w.txt:4: the text is 65 characters long; a set file keeps 64, and the game would lose the rest"},
      {"set S\nheader Sets\n", "w.txt:2: the header of the set must be 3 characters long, as the game reads 3 bytes for it; this one has 4"},
      {"set a\tb\n", "w.txt:1: the control character U+0009 must be written as \\x09 inside double quotes"},
      {"set \xE2\x98\x83\n", "w.txt:1: '\u2603' (U+2603) is not a Windows-1252 character, and set files hold only those"},
      {"# nothing\n", "w.txt:1: there is no 'set' line; a world file begins with 'set' and the set's name"},
  };
  for (const Case& c : cases) {
    const fhset::Built built = buildSet(c.text, QStringLiteral("w.txt"));
    EXPECT_EQ(built.problems, QStringList({c.problem})) << c.text;
    EXPECT_EQ(built.set, nullptr) << c.text;
  }
}

TEST(FhsetBuild, EveryProblemIsToldNotOnlyTheFirst) {
  const fhset::Built built = buildSet("set S\nshot A\n  elapsed-time on\n  hotspot H\n    left x\n    top 2\n", QStringLiteral("w.txt"));
  EXPECT_EQ(built.problems, QStringList({"w.txt:3: expected yes or no, not 'on'", "w.txt:5: 'x' is not a whole number"}));
}

int fhsetWith(const QStringList& arguments, QString* out = nullptr, QString* err = nullptr) {
  QString ignored;
  QTextStream outStream(out ? out : &ignored);
  QTextStream errStream(err ? err : &ignored);
  return fhset::runFhset(arguments, outStream, errStream);
}

TEST(FhsetCommand, ExitCodesTellDoneDamagedAndUnusable) {
  TempFolder folder;
  const QString world = folder.write(QStringLiteral("world.set"), savedBytes(sampleSet()));
  QString text;
  EXPECT_EQ(fhsetWith({QStringLiteral("dump"), world}, &text), 0);
  const QString copy = folder.at(QStringLiteral("copy.set"));
  EXPECT_EQ(fhsetWith({QStringLiteral("build"), folder.write(QStringLiteral("world.txt"), text.toUtf8()), QStringLiteral("-o"), copy}), 0);
  EXPECT_TRUE(QFile::exists(copy));

  QString err;
  EXPECT_EQ(fhsetWith({QStringLiteral("dump"), folder.write(QStringLiteral("short.set"), "Set")}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(QStringLiteral("short.set: byte 3: the file ends 3 bytes into the set")));
  const QString bad = folder.write(QStringLiteral("bad.txt"), "set S\nwidth 3\n");
  const QString target = folder.at(QStringLiteral("bad.set"));
  EXPECT_EQ(fhsetWith({QStringLiteral("build"), QStringLiteral("-o"), target, bad}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(bad + QStringLiteral(":2: 'width' belongs in a hotspot")));
  EXPECT_FALSE(QFile::exists(target));

  EXPECT_EQ(fhsetWith({QStringLiteral("--help")}), 0);
  EXPECT_EQ(fhsetWith({}), 2);
  EXPECT_EQ(fhsetWith({QStringLiteral("build"), QStringLiteral("a.txt")}), 2);
  EXPECT_EQ(fhsetWith({QStringLiteral("dump"), folder.at(QStringLiteral("none.set"))}), 2);
}

}  // namespace
}  // namespace fh::test
