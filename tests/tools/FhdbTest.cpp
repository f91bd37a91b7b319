#include "DatabaseBuild.h"
#include "Fhdb.h"

#include "platform/base/Failure.h"
#include "platform/data/Database.h"

#include "TempFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

const QString kWorld = QStringLiteral(FH_SOURCE_DIR "/world/database/");

int fhdb(const QStringList& arguments, QString* out = nullptr, QString* err = nullptr) {
  QString ignored;
  QTextStream outStream(out ? out : &ignored);
  QTextStream errStream(err ? err : &ignored);
  return fhdb::runFhdb(arguments, outStream, errStream);
}

QString containers(const QString& names) {
  QString sql;
  for (const QString& name : names.split(u' '))
    sql += QStringLiteral("INSERT INTO Containers (Name, \"Friendly Name\", WiseState, DefaultState) VALUES ('%1', '%1', 0, 1);\n").arg(name);
  return sql;
}

// A player with the world's starting house, as the game adds one.
int addPlayer(Database& db, const QString& name) {
  Recordset users = db.OpenRecordset(QStringLiteral("Users"));
  users.AddNew();
  const int id = users.Field(QStringLiteral("ID")).toLong();
  users.SetField(QStringLiteral("User Name"), name);
  users.Update();
  QueryDef make = db.QueryDefs(QStringLiteral("Make New User"));
  make.SetParameter(QStringLiteral("User ID"), id);
  make.Execute();
  return id;
}

class FhdbBuild : public testing::Test {
 protected:
  QStringList world(const char* containerNames) {
    const QString rows = folder.write(QStringLiteral("%1.sql").arg(++m_sources), containers(QString::fromLatin1(containerNames)).toUtf8());
    return {kWorld + QStringLiteral("schema.sql"), kWorld + QStringLiteral("queries.sql"), rows};
  }
  QStringList copies() const { return QDir(folder.path()).entryList({QStringLiteral("Fernhollow.mdb.*.bak")}, QDir::Files); }

  TempFolder folder;
  const QString target = folder.at(QStringLiteral("Fernhollow.mdb"));

 private:
  int m_sources = 0;
};

// The world is replaced inside the file: a game that has it open goes on in the new world.
TEST_F(FhdbBuild, ARebuildKeepsThePlayersWithACopyAndGivesThemTheNewContainers) {
  EXPECT_EQ(fhdb::buildDatabase(target, world("Tap Lamp")).playersKept, 0);
  auto game = Database::OpenDatabase(target);
  const int ann = addPlayer(*game, QStringLiteral("Ann"));
  Recordset tap = game->OpenRecordset(QStringLiteral("SELECT * FROM UserContainers WHERE \"User ID\" = ? AND Container = 'Tap'"), {ann});
  tap.Edit();
  tap.SetField(QStringLiteral("CurrentState"), 0);
  tap.Update();

  const fhdb::BuildReport report = fhdb::buildDatabase(target, world("Tap Lamp Fridge"));
  EXPECT_EQ(report.playersKept, 1);
  EXPECT_EQ(copies(), QStringList{QFileInfo(report.copyKept).fileName()});
  QueryDef state = game->QueryDefs(QStringLiteral("StateScore"));
  state.SetParameter(QStringLiteral("SelectUserID"), ann);
  EXPECT_EQ(state.OpenRecordset().Field(QStringLiteral("CountOfCurrentState")).toI16(), 2);  // Lamp and the new Fridge
  EXPECT_EQ(game->OpenRecordset(QStringLiteral("UserContainers")).RecordCount(), 3);
  EXPECT_FALSE(QFile::exists(target + QStringLiteral(".new")));

  // A world without the tap still takes the player's row for it, kept for a world that brings it back;
  // a second rebuild within the second keeps a copy of its own.
  EXPECT_EQ(fhdb::buildDatabase(target, world("Lamp Fridge")).playersKept, 1);
  EXPECT_EQ(game->OpenRecordset(QStringLiteral("UserContainers")).RecordCount(), 3);
  EXPECT_EQ(copies().size(), 2);
}

// A removed player's ID is never given again, also not after a rebuild.
TEST_F(FhdbBuild, IdsOfRemovedPlayersAreNeverGivenAgain) {
  fhdb::buildDatabase(target, world("Tap"));
  auto db = Database::OpenDatabase(target);
  addPlayer(*db, QStringLiteral("Ann"));
  const int bob = addPlayer(*db, QStringLiteral("Bob"));
  Recordset gone = db->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {bob});
  gone.Delete();
  fhdb::buildDatabase(target, world("Tap"));
  EXPECT_EQ(addPlayer(*db, QStringLiteral("Cleo")), bob + 1);
}

// A file that doesn't read as a game database is refused and left as it is, whatever it holds.
TEST_F(FhdbBuild, AFileThatCantBeReadOrASourceThatFailsLeavesTheFileAsItWas) {
  fhdb::buildDatabase(target, world("Tap"));
  addPlayer(*Database::OpenDatabase(target), QStringLiteral("Ann"));
  const QByteArray healthy = fileBytes(target);
  const QByteArray unreadable[] = {QByteArray("the old file"), QByteArray(), healthy.left(healthy.size() / 2)};
  for (const QByteArray& bytes : unreadable) {
    folder.write(QStringLiteral("Fernhollow.mdb"), bytes);
    QString err;
    EXPECT_EQ(fhdb({QStringLiteral("create"), folder.path()}, nullptr, &err), 1);
    EXPECT_TRUE(err.contains(QStringLiteral("can't be read as a game database"))) << err.toStdString();
    EXPECT_EQ(fileBytes(target), bytes);
  }

  folder.write(QStringLiteral("Fernhollow.mdb"), healthy);
  const QString broken = folder.write(QStringLiteral("broken.sql"), "CREATE TABLE T (A);\nINSERT INTO Nowhere VALUES (1);\n");
  QString err;
  EXPECT_EQ(fhdb({QStringLiteral("create"), folder.path(), broken}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(broken + QStringLiteral(":2:"))) << err.toStdString();
  EXPECT_EQ(fileBytes(target), healthy);
  EXPECT_TRUE(copies().isEmpty());
}

TEST(FhdbCommands, QueriesPrintTheirRowsAndFailuresSayWhat) {
  TempFolder folder;
  ASSERT_EQ(fhdb({QStringLiteral("create"), folder.path(), kWorld + QStringLiteral("schema.sql"), kWorld + QStringLiteral("queries.sql"),
                  QStringLiteral(FH_SOURCE_DIR "/tests/startup/GameDatabaseFixture.sql")}),
            0);
  const QString file = folder.at(QStringLiteral("Fernhollow.mdb"));
  QString out;
  EXPECT_EQ(fhdb({QStringLiteral("query"), file, QStringLiteral("selectionscore"), QStringLiteral("SelectUserID=3")}, &out), 0);
  EXPECT_EQ(out, QStringLiteral("SumOfADR\n27\n"));
  out.clear();
  EXPECT_EQ(fhdb({QStringLiteral("query"), file, QStringLiteral("SELECT Name, \"Help Text\" FROM Containers WHERE Name = 'Radio'")}, &out), 0);
  EXPECT_EQ(out, QStringLiteral("Name\tHelp Text\nRadio\tNULL\n"));
  out.clear();
  EXPECT_EQ(fhdb({QStringLiteral("users"), file}, &out), 0);
  EXPECT_TRUE(out.contains(QStringLiteral("\n2\tWendy\t2\t18:00:00\tyes\n"))) << out.toStdString();

  QString err;
  EXPECT_EQ(fhdb({QStringLiteral("query"), file, QStringLiteral("StateScore")}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(QStringLiteral("parameter 'SelectUserID' of query 'StateScore' is not set")));
  EXPECT_EQ(fhdb({QStringLiteral("exec"), file, QStringLiteral("Make New User"), QStringLiteral("UserID=1")}, nullptr, &err), 1);
  EXPECT_EQ(fhdb({QStringLiteral("query"), folder.at(QStringLiteral("none.mdb")), QStringLiteral("Users")}, nullptr, &err), 2);
  EXPECT_TRUE(err.contains(QStringLiteral("there is no database file")));
  EXPECT_EQ(fhdb({QStringLiteral("frobnicate")}), 2);
}

}  // namespace
}  // namespace fh::test
