#include "DatabaseBuild.h"
#include "Fhworld.h"
#include "WorldBuild.h"
#include "WorldCheck.h"

#include "platform/files/ByteFile.h"
#include "script/ScriptWords.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include "TempFolder.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

const QString kSources = QStringLiteral(FH_SOURCE_DIR "/");

QString readSource(const QString& relative) {
  QFile file(kSources + relative);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << relative.toStdString();
  return QString::fromUtf8(file.readAll());
}

// The small world of tests/tools/smallworld, built into a database folder, perhaps with a change.
class SmallWorld {
 public:
  explicit SmallWorld(QString setText = readSource(QStringLiteral("tests/tools/smallworld/small.txt")),
                      const QString& extraSql = {}) {
    const QString content = readSource(QStringLiteral("tests/tools/smallworld/small.sql")) + QLatin1Char('\n') + extraSql;
    m_folder.makeFolder(QStringLiteral("Database"));
    fhdb::buildDatabase(m_folder.at(QStringLiteral("Database/Fernhollow.mdb")),
                        {kSources + QStringLiteral("world/database/schema.sql"),
                         kSources + QStringLiteral("world/database/queries.sql"),
                         m_folder.write(QStringLiteral("content.sql"), content.toUtf8())});
    const fhset::Built built = fhset::buildSet(setText.toUtf8(), QStringLiteral("small.txt"));
    EXPECT_TRUE(built.problems.isEmpty()) << built.problems.join('\n').toStdString();
    if (!built.set) return;
    ByteFile file = ByteFile::openForWriting(m_folder.at(QStringLiteral("Database/small.set")));
    built.set->Save(file);
    file.close();
  }

  QString database() const { return m_folder.at(QStringLiteral("Database")); }

  // Problems of the world, leaving its files aside.
  QStringList problems() const {
    const fhworld::CheckResult result = fhworld::checkWorld(database(), {});
    QStringList lines;
    for (const fhworld::Problem& problem : result.problems.all()) lines << problem.line();
    return lines;
  }

  // A resource folder that holds every file the world needs.
  QString allArt() const {
    const fhworld::CheckResult result = fhworld::checkWorld(database(), {});
    for (const fhworld::NeededFile& file : result.files.all()) m_folder.write(QStringLiteral("resources/") + file.path);
    return m_folder.at(QStringLiteral("resources"));
  }

 private:
  TempFolder m_folder;
};

QString smallWorldWith(const QString& from, const QString& to) {
  QString text = readSource(QStringLiteral("tests/tools/smallworld/small.txt"));
  EXPECT_TRUE(text.contains(from)) << from.toStdString();
  return text.replace(from, to);
}

int fhworld(const QStringList& arguments, QString* out) {
  QString ignored;
  QTextStream outStream(out);
  QTextStream errStream(&ignored);
  return fhworld::runFhworld(arguments, outStream, errStream);
}

TEST(FhworldCheck, AWholeWorldPassesAndIsSummed) {
  SmallWorld world;
  QString out;
  EXPECT_EQ(fhworld({QStringLiteral("check"), world.database(), world.allArt()}, &out), 0) << out.toStdString();
  EXPECT_EQ(out, QStringLiteral("2 shots, 6 hotspots, 5 containers, 2 objects, 1 sprites, 4 sounds, 35 questions: "
                                "no problems\n"));
}

TEST(FhworldCheck, EachMissingFileIsToldWithWhatNeedsIt) {
  SmallWorld world;
  const fhworld::CheckResult result = fhworld::checkWorld(world.database(), world.database());
  QStringList missing;
  for (const fhworld::Problem& problem : result.problems.all()) missing << problem.missingFile;
  EXPECT_FALSE(missing.contains(QString())) << "only files are missing";
  for (const char* file : {"Graphics/Porch.bmp", "Graphics/PorchDripping.bmp", "Graphics/Drip.bmp", "Graphics/ObjLed.bmp",
                           "Audio/Drip.wav", "Audio/LiteUp.wav", "Graphics/Menu.bmp", "Graphics/Slide11.bmp", "Audio/ROCK1.mid"}) {
    EXPECT_TRUE(missing.contains(QLatin1String(file), Qt::CaseInsensitive)) << file;
  }
  QString out;
  EXPECT_EQ(fhworld({QStringLiteral("check"), world.database(), world.database()}, &out), 1);
  EXPECT_TRUE(out.contains(QStringLiteral("sprite Drip: the file Graphics/Drip.bmp is missing\n"))) << out.toStdString();
}

// A fault put into the small world, and the words that must tell it.
struct Fault {
  const char* name;
  const char* from;  // a piece of the set's text, changed to `to`
  const char* to;
  const char* sql;   // or rows changed after the world's own
  const char* told;
};

const Fault kFaults[] = {
    {"unknown container", "do togglecontainer tap", "do togglecontainer tab", "", "the container \"tab\" is not in the world"},
    {"unknown sprite", "do animatesprite drip", "do animatesprite moth", "", "the sprite \"moth\" is not in the world"},
    {"unknown sound", "do showinfobox facts", "do playlocal splash looped", "", "the sound \"splash\" is not loaded"},
    {"unknown shot", "do goto shot porch", "do goto shot attic", "", "the shot \"attic\" is not in the set"},
    {"unknown dialog", "rollover showdialog hello", "rollover showdialog goodbye", "", "the dialog \"goodbye\" is not in"},
    {"unknown info box", "do showinfobox facts", "do showinfobox figures", "", "the info box \"figures\" is not in"},
    {"unknown hotspot", "do showinfobox facts", "do sethotspot bell active", "", "the shot Porch has no hotspot \"bell\""},
    {"too few words", "do togglecontainer tv", "do setcontainer tv", "", "\"setcontainer\" needs at least 3 words"},
    {"unknown command", "do showinfobox facts", "do showinfo facts", "", "\"showinfo\" is no command"},
    {"if without endif", "    do endif\n", "", "", "line 2: the if has no endif"},
    {"bad keyword", "do if tap state 1", "do if tap colour 1", "", "the keyword \"colour\" is none of state"},
    {"unknown object", "", "", "UPDATE SpriteCelSources SET Condition = 'bulb holds brass bulb';", "no object of Bulb is written \"brass bulb\""},
    {"condition line in one word", "", "", "UPDATE SpriteCelSources SET Condition = Condition || char(13) || char(10) || 'tv';",
     "the condition \"tv\" can't be evaluated"},
    {"screen over the house", "do showcontainer bulb", "do computer cleanair", "", "it opens a computer screen over a shot of the house"},
    {"unreachable shot", "shot Computer", "shot Attic\n  elapsed-time yes\n\nshot Computer", "", "shot Attic: no way leads to it"},
    {"fixture that can't be put right", "    do togglecontainer tv\n", "", "", "container TV: no script the player can reach"},
    {"object that can't be chosen", "do showcontainer bulb", "do showdialog hello", "", "container Bulb: no script the player can reach opens"},
    {"computer with neighbours", "shot Computer\n", "shot Computer\n  to-left Porch\n", "", "the Computer shot has no neighbours"},
    {"hotspot outside the picture", "left 200\n    top 0", "left 600\n    top 0", "", "it reaches outside the 632 by 390 picture"},
    {"hotspot under the screens", "height 60\n    do computer cleanair", "height 90\n    do computer cleanair", "", "it reaches under the computer's screens"},
    {"no friendly name", "", "", "DELETE FROM Shots WHERE Name = 'Porch';", "shot Porch: it has no friendly name"},
    {"long start-up line", "", "",
     "UPDATE StartUp SET Script = 'showdialogstring ' || substr(hex(zeroblob(40)), 1, 60) || char(13) || char(10) || Script;",
     "StartUp script, line 1: the line has 77 characters"},
    {"sprite without looks", "", "", "INSERT INTO Sprites (Name, Shot) VALUES ('Moth', 'Porch');", "sprite Moth: it has no cel source"},
    {"shot without backdrop", "", "", "DELETE FROM VisualRegistry WHERE Shot = 'Computer';", "shot Computer: it has no backdrop"},
    {"unprintable question", "", "",
     "UPDATE HomeCheckupQuestions SET Text = 'Howmanyshowersdoesyourfamilytakeeveryweekinsummerandinwinter?' WHERE ID = 7;",
     "question 7: it would stop the printout"},
    {"question number too long", "", "", "UPDATE HomeCheckupQuestions SET Number = 100, \"Sub Number\" = 1 WHERE ID = 8;",
     "question 100a: it would stop the printout"},
    {"too many questions", "", "", "INSERT INTO HomeCheckupQuestions (Number, Text, \"Answer Style\") VALUES (40, 'Why?', 1);",
     "it has 36 questions, but the computer tells the student there are 35"},
    {"dialog too long", "", "", "UPDATE Dialogs SET Text = hex(zeroblob(100));", "dialog hello: its text has 200 characters"},
    {"new house not at 100", "", "",
     "UPDATE SavedQueries SET Statement = 'SELECT 3 + 0 * :SelectUserID AS CountOfCurrentState' WHERE Name = 'StateScore';",
     "a new player's house scores 84, not 100"},
    {"wise house not at 1", "", "",
     "UPDATE SavedQueries SET Statement = 'SELECT COUNT(*) + 0 * :SelectUserID AS CountOfCurrentState FROM Containers "
     "WHERE WiseState IS NOT NULL' WHERE Name = 'StateScore';",
     "a house with every choice wise scores 63, not 1"},
    {"wise step that doesn't count", "", "", "UPDATE Containers SET DefaultState = 0 WHERE Name = 'Tap';",
     "container Tap: putting it right alone leaves the score at 100"},
    {"state shown elsewhere", "", "", "UPDATE VisualRegistry SET Shot = 'Computer' WHERE Container = 'TV';",
     "container TV: its states all look the same on Porch: no backdrop row or sprite look there"},
    {"object not shown", "", "", "DELETE FROM VisualRegistry WHERE Container = 'Bulb';", "container Bulb: its objects all look the same"},
    {"engine's container missing", "", "", "DELETE FROM Containers WHERE Name = 'CleanAir';",
     "the computer's screens set the container \"CleanAir\", which the world lacks"},
};

TEST(FhworldCheck, EachKindOfFaultIsCaught) {
  for (const Fault& fault : kFaults) {
    const SmallWorld world(*fault.from ? smallWorldWith(QLatin1String(fault.from), QLatin1String(fault.to))
                                       : readSource(QStringLiteral("tests/tools/smallworld/small.txt")),
                           QLatin1String(fault.sql));
    const QStringList problems = world.problems();
    EXPECT_TRUE(problems.join('\n').contains(QLatin1String(fault.told)))
        << fault.name << ":\n" << problems.join('\n').toStdString();
  }
}

TEST(FhworldCheck, MoreThanTwentySoundsAreTooMany) {
  QString lines;
  for (int i = 0; i < 17; ++i) lines += QStringLiteral("loadsound Drip.wav Drip%1' || char(13) || char(10) || '").arg(i);
  const SmallWorld world(readSource(QStringLiteral("tests/tools/smallworld/small.txt")),
                         QStringLiteral("UPDATE StartUp SET Script = '%1' || Script;").arg(lines));
  EXPECT_TRUE(world.problems().contains(QStringLiteral("StartUp script: it loads 21 sounds; the game holds at most 20, the "
                                                       "rest are refused")));
}

TEST(FhworldCommandLine, BadArgumentsAndUnreadableWorldsExitWithTwo) {
  QString out;
  EXPECT_EQ(fhworld({}, &out), 2);
  EXPECT_EQ(fhworld({QStringLiteral("check"), QStringLiteral("only-one")}, &out), 2);
  TempFolder empty;
  EXPECT_EQ(fhworld({QStringLiteral("check"), empty.path(), empty.path()}, &out), 2);
}

TEST(FhworldCommandLine, ResourcesListsEveryFileWithWhatNeedsIt) {
  SmallWorld world;
  QString out;
  EXPECT_EQ(fhworld({QStringLiteral("resources"), world.database()}, &out), 0);
  EXPECT_TRUE(out.contains(QStringLiteral("Graphics/PorchDripping.bmp\tbackdrop 2 of shot Porch\n"))) << out.toStdString();
  EXPECT_TRUE(out.contains(QStringLiteral("Audio/Country3.mid\tthe stereo's Country music\n")));
}

// The files that world/resources.md lists for the artists, from its table's first column.
QSet<QString> listedResources() {
  QSet<QString> files;
  static const QRegularExpression row(QStringLiteral("^\\|\\s*`?((Graphics|Audio)/[^|` ]+)`?\\s*\\|"));
  for (const QString& line : readSource(QStringLiteral("world/resources.md")).split('\n')) {
    const QRegularExpressionMatch match = row.match(line);
    if (match.hasMatch()) files.insert(match.captured(1).toLower());
  }
  return files;
}

// Without its art, the bundled world lacks exactly the files of the artists' list: the list and the
// world agree.
TEST(BundledWorld, LacksNothingButTheListedArt) {
  TempFolder noArt;
  const fhworld::CheckResult result = fhworld::checkWorld(QStringLiteral(FH_STAGE_DIR "/Database"), noArt.path());
  QSet<QString> missing;
  for (const fhworld::Problem& problem : result.problems.all()) {
    EXPECT_FALSE(problem.missingFile.isEmpty()) << problem.line().toStdString();
    missing.insert(problem.missingFile.toLower());
  }
  const QSet<QString> listed = listedResources();
  EXPECT_EQ(missing - listed, QSet<QString>()) << "needed but not listed";
  EXPECT_EQ(listed - missing, QSet<QString>()) << "listed but not needed";
  EXPECT_GE(result.summary.shots, 13);
  EXPECT_GE(result.summary.containers, 22);
  EXPECT_GE(result.summary.sprites, 8);
}

// With the pictures, sounds and music that the build makes, the bundled world is whole.
TEST(BundledWorld, IsWholeWithTheStagedArt) {
  const fhworld::CheckResult result =
      fhworld::checkWorld(QStringLiteral(FH_STAGE_DIR "/Database"), QStringLiteral(FH_STAGE_DIR "/resources"));
  QStringList lines;
  for (const fhworld::Problem& problem : result.problems.all()) lines << problem.line();
  EXPECT_TRUE(lines.isEmpty()) << lines.join('\n').toStdString();
}

// The house is also the engine's largest fixture: its scripts use every command with its options.
TEST(BundledWorld, UsesEveryCommandWithItsOptions) {
  cSet house;
  ByteFile file = ByteFile::openForReading(QStringLiteral(FH_STAGE_DIR "/Database/Fernhollow.set"));
  house.Load(file);
  QSet<QString> used;
  auto note = [&](const QString& line) {
    const ScriptWords words(line);
    const QString& command = words.word(0);
    used << command;
    if (command == QLatin1String("if")) used << command + QLatin1Char(' ') + words.word(2);
    if (command == QLatin1String("computer") || command == QLatin1String("goto") || command == QLatin1String("showvideo")) {
      used << command + QLatin1Char(' ') + words.word(1);
    }
    if (command == QLatin1String("setcontainer")) used << command + (words.word(3).isEmpty() ? QString() : QStringLiteral(" refresh"));
    if (command == QLatin1String("togglecontainer") || command == QLatin1String("playlocal") || command == QLatin1String("sethotspot")) {
      used << command + (words.word(2).isEmpty() ? QString() : QLatin1Char(' ') + words.word(2));
    }
    if (command == QLatin1String("showdialogstring")) {
      used << command + (words.word(1) == QLatin1String("last") ? QStringLiteral(" last") : QString());
    }
  };
  for (const auto& shot : house.shots()) {
    for (const auto& hotSpot : shot->hotSpots()) {
      note(hotSpot->Rollover);
      for (const QString& line : hotSpot->ScriptLines) note(line);
    }
  }
  for (const char* wanted :
       {"if state", "if holds", "if !holds", "endif", "animatesprite", "stopsprite", "setcontainer", "setcontainer refresh",
        "togglecontainer", "togglecontainer anim", "showdialog", "showdialogstring", "showdialogstring last", "showinfobox",
        "showcontainer", "showvideo next", "showvideo previous", "stopvideo", "goto shot", "goto set", "playlocal",
        "playlocal looped", "stoplocal", "sethotspot", "sethotspot active", "object", "computer shutdown", "computer print",
        "computer howamidoing", "computer communitychalkboard", "computer cleanair", "computer homecheckup"}) {
    EXPECT_TRUE(used.contains(QLatin1String(wanted))) << wanted;
  }
}

}  // namespace
}  // namespace fh::test
