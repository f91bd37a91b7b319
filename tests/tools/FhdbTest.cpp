#include "DatabaseBuild.h"
#include "Fhdb.h"

#include "platform/Database.h"
#include "platform/Failure.h"

#include "TempFolder.h"

#include <QFile>

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

TEST(FhdbBuild, ARebuildKeepsThePlayersAndGivesThemTheNewContainers) {
  TempFolder folder;
  const QString target = folder.at(QStringLiteral("Fernhollow.mdb"));
  const QString before = folder.write(QStringLiteral("before.sql"), containers(QStringLiteral("Tap Lamp")).toUtf8());
  EXPECT_EQ(fhdb::buildDatabase(target, {kWorld + QStringLiteral("schema.sql"), kWorld + QStringLiteral("queries.sql"), before}).playersKept, 0);
  {
    auto db = Database::OpenDatabase(target);
    Recordset users = db->OpenRecordset(QStringLiteral("Users"));
    users.AddNew();
    const int id = users.Field(QStringLiteral("ID")).toLong();
    users.SetField(QStringLiteral("User Name"), QStringLiteral("Ann"));
    users.Update();
    QueryDef make = db->QueryDefs(QStringLiteral("Make New User"));
    make.SetParameter(QStringLiteral("User ID"), id);
    make.Execute();
    QueryDef tap = db->QueryDefs(QStringLiteral("GetContainer"));
    tap.SetParameter(QStringLiteral("SelectContainer"), QStringLiteral("tap"));
    tap.SetParameter(QStringLiteral("SelectUserID"), id);
    Recordset row = tap.OpenRecordset();
    row.Edit();
    row.SetField(QStringLiteral("CurrentState"), 0);
    row.Update();
  }

  const QString after = folder.write(QStringLiteral("after.sql"), containers(QStringLiteral("Tap Lamp Fridge")).toUtf8());
  EXPECT_EQ(fhdb::buildDatabase(target, {kWorld + QStringLiteral("schema.sql"), kWorld + QStringLiteral("queries.sql"), after}).playersKept, 1);
  auto db = Database::OpenDatabase(target);
  EXPECT_EQ(db->OpenRecordset(QStringLiteral("Users")).Field(QStringLiteral("User Name")).toText(), QStringLiteral("Ann"));
  QueryDef state = db->QueryDefs(QStringLiteral("StateScore"));
  state.SetParameter(QStringLiteral("SelectUserID"), 1);
  EXPECT_EQ(state.OpenRecordset().Field(QStringLiteral("CountOfCurrentState")).toI16(), 2);  // Lamp and the new Fridge
  EXPECT_EQ(db->OpenRecordset(QStringLiteral("UserContainers")).RecordCount(), 3);
  EXPECT_FALSE(QFile::exists(target + QStringLiteral(".new")));
}

TEST(FhdbBuild, ABrokenSourceLeavesTheOldFileAsItWas) {
  TempFolder folder;
  const QString target = folder.write(QStringLiteral("Fernhollow.mdb"), "the old file");
  const QString broken = folder.write(QStringLiteral("broken.sql"), "CREATE TABLE T (A);\nINSERT INTO Nowhere VALUES (1);\n");
  QString err;
  EXPECT_EQ(fhdb({QStringLiteral("create"), folder.path(), broken}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(broken + QStringLiteral(":2:"))) << err.toStdString();
  QFile old(target);
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), QByteArray("the old file"));
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
  EXPECT_EQ(fhdb({QStringLiteral("exec"), file, QStringLiteral("Make Old User"), QStringLiteral("User ID=1")}, nullptr, &err), 1);
  EXPECT_TRUE(err.contains(QStringLiteral("Item not found (query 'Make Old User')")));
  EXPECT_EQ(fhdb({QStringLiteral("exec"), file, QStringLiteral("Make New User"), QStringLiteral("UserID=1")}, nullptr, &err), 1);
  EXPECT_EQ(fhdb({QStringLiteral("query"), folder.at(QStringLiteral("none.mdb")), QStringLiteral("Users")}, nullptr, &err), 2);
  EXPECT_TRUE(err.contains(QStringLiteral("there is no database file")));
  EXPECT_EQ(fhdb({QStringLiteral("frobnicate")}), 2);
}

}  // namespace
}  // namespace fh::test
