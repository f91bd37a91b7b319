#include "platform/base/Failure.h"
#include "platform/data/Database.h"
#include "platform/data/SqlScript.h"

#include "FailureOf.h"
#include "TempFolder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace fh::test {

namespace {

const char* const kFixture = R"sql(
CREATE TABLE SavedQueries (Name TEXT PRIMARY KEY COLLATE NOCASE, Statement TEXT NOT NULL,
                           UpdateTable TEXT COLLATE NOCASE, UpdateKey TEXT COLLATE NOCASE);
CREATE TABLE SavedQueryParameters (Query TEXT NOT NULL COLLATE NOCASE, Name TEXT NOT NULL COLLATE NOCASE,
                                   Type TEXT NOT NULL, PRIMARY KEY (Query, Name));
CREATE TABLE Users (ID INTEGER PRIMARY KEY, "User Name" TEXT COLLATE NOCASE, Password TEXT COLLATE NOCASE,
                    "Current Shot" INTEGER DEFAULT 0, ElapsedTime REAL DEFAULT 0, HasWonGame INTEGER DEFAULT 0);
CREATE TABLE Things (ID INTEGER PRIMARY KEY, Name TEXT COLLATE NOCASE, Amount INTEGER, Note TEXT COLLATE NOCASE);
CREATE TABLE Holdings (ID INTEGER PRIMARY KEY, UserID INTEGER, Thing TEXT COLLATE NOCASE, State INTEGER DEFAULT 0);
INSERT INTO Users ("User Name", Password) VALUES ('Ann', 'Fern'), ('Gran''s Pet', 'x');
INSERT INTO Things (Name, Amount, Note) VALUES ('Lamp', 60, NULL), ('Tap', 8, ''), ('Fridge', 0, 'cold; very');
INSERT INTO Holdings (UserID, Thing, State) VALUES (1, 'Lamp', 0), (1, 'Tap', 1), (2, 'Lamp', 1);
INSERT INTO SavedQueries VALUES ('GetHolding',
  'SELECT Holdings.ID AS HoldingID, Holdings.State, Things.Name AS "Things.Name", Things.Note
     FROM Holdings JOIN Things ON Things.Name = Holdings.Thing
    WHERE Holdings.UserID = :Select_User AND Holdings.Thing = :Thing', 'Holdings', 'HoldingID');
INSERT INTO SavedQueryParameters VALUES ('GetHolding', 'Select User', 'Long'), ('GetHolding', 'Thing', 'Text');
INSERT INTO SavedQueries VALUES ('AllThings', 'SELECT Name AS "Things.Name", Amount FROM Things ORDER BY Amount', NULL, NULL);
INSERT INTO SavedQueries VALUES ('Forget User', 'DELETE FROM Holdings WHERE UserID = :User_ID', NULL, NULL);
INSERT INTO SavedQueryParameters VALUES ('Forget User', 'User ID', 'Long');
INSERT INTO SavedQueries VALUES ('End Transaction', 'COMMIT', NULL, NULL);
)sql";

class DataLayer : public testing::Test {
 protected:
  void SetUp() override {
    const QString source = folder.write(QStringLiteral("fixture.sql"), kFixture);
    createDatabaseFile(folder.at(QStringLiteral("Game.mdb")), {source});
    db = Database::OpenDatabase(folder.path() + QStringLiteral("\\GAME.MDB"));
  }
  Recordset holding(int user, const QString& thing) {
    QueryDef query = db->QueryDefs(QStringLiteral("GetHolding"));
    query.SetParameter(QStringLiteral("Select User"), user);
    query.SetParameter(QStringLiteral("Thing"), thing);
    return query.OpenRecordset();
  }
  int holdingState(int user, const QString& thing) { return holding(user, thing).Field(QStringLiteral("State")).toI16(); }

  TempFolder folder;
  std::shared_ptr<Database> db;
};

}  // namespace

TEST_F(DataLayer, RecordsetMovesToBothEndsAndCounts) {
  Recordset rs = db->OpenRecordset(QStringLiteral("things"));
  EXPECT_EQ(rs.RecordCount(), 3);
  rs.MoveLast();
  EXPECT_EQ(rs.AbsolutePosition(), 2);
  EXPECT_EQ(rs.Field(QStringLiteral("Name")).toText(), QStringLiteral("Fridge"));
  rs.MoveNext();
  EXPECT_TRUE(rs.IsEOF());
  EXPECT_EQ(rs.AbsolutePosition(), -1);
  EXPECT_EQ(failureOf([&] { rs.MoveNext(); }), Failure::NoCurrentRecord);
  EXPECT_EQ(failureOf([&] { rs.Field(QStringLiteral("Name")); }), Failure::NoCurrentRecord);
  rs.MoveFirst();
  rs.MovePrevious();
  EXPECT_TRUE(rs.IsBOF());
  EXPECT_EQ(failureOf([&] { rs.MovePrevious(); }), Failure::NoCurrentRecord);

  Recordset none = db->OpenRecordset(QStringLiteral("SELECT * FROM Things WHERE Amount > ?"), {1000});
  EXPECT_TRUE(none.IsBOF() && none.IsEOF());
  EXPECT_EQ(failureOf([&] { none.MoveFirst(); }), Failure::NoCurrentRecord);
}

TEST_F(DataLayer, NullIsNeitherEmptyTextNorZero) {
  Recordset rs = db->OpenRecordset(QStringLiteral("SELECT * FROM Things ORDER BY ID"));
  EXPECT_TRUE(rs.Field(QStringLiteral("Note")).isNull());
  QString message;
  EXPECT_EQ(failureOf([&] { rs.Field(QStringLiteral("Note")).toText(); }, &message), Failure::InvalidUseOfNull);
  EXPECT_TRUE(message.contains(QStringLiteral("'Note'")));
  EXPECT_EQ(failureOf([&] { rs.Field(QStringLiteral("Name")).toI16(); }), Failure::TypeMismatch);
  rs.MoveNext();
  EXPECT_FALSE(rs.Field(QStringLiteral("Note")).isNull());
  EXPECT_EQ(rs.Field(QStringLiteral("Note")).toText(), QString());
  rs.MoveNext();
  EXPECT_FALSE(rs.Field(QStringLiteral("Amount")).isNull());
  EXPECT_EQ(rs.Field(QStringLiteral("Amount")).toI16(), 0);
}

TEST_F(DataLayer, NamesAndTextComparisonsIgnoreCase) {
  Recordset rs = db->OpenRecordset(QStringLiteral("SELECT * FROM Things WHERE Name = ?"), {QStringLiteral("LAMP")});
  ASSERT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs.Field(QStringLiteral("aMoUnT")).toI16(), 60);
  EXPECT_EQ(holdingState(1, QStringLiteral("tap")), 1);
  QueryDef query = db->QueryDefs(QStringLiteral("getholding"));
  query.SetParameter(QStringLiteral("SELECT USER"), 2);
  query.SetParameter(QStringLiteral("thing"), QStringLiteral("lamp"));
  EXPECT_EQ(query.OpenRecordset().RecordCount(), 1);
}

TEST_F(DataLayer, AddNewGivesTheEngineIdBeforeUpdate) {
  Recordset users = db->OpenRecordset(QStringLiteral("Users"));
  users.AddNew();
  const int id = users.Field(QStringLiteral("ID")).toLong();
  EXPECT_GT(id, 2);
  EXPECT_EQ(users.Field(QStringLiteral("Current Shot")).toI16(), 0);  // the table's default
  users.SetField(QStringLiteral("User Name"), QStringLiteral("Bo"));
  users.Update();
  EXPECT_EQ(users.RecordCount(), 3);
  Recordset bo = db->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {id});
  ASSERT_EQ(bo.RecordCount(), 1);
  EXPECT_EQ(bo.Field(QStringLiteral("User Name")).toText(), QStringLiteral("Bo"));

  users.AddNew();
  const int dropped = users.Field(QStringLiteral("ID")).toLong();
  users.CancelUpdate();
  EXPECT_EQ(db->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {dropped}).RecordCount(), 0);
  EXPECT_EQ(failureOf([&] { users.SetField(QStringLiteral("Password"), QStringLiteral("p")); }), Failure::UpdateWithoutEdit);
}

TEST_F(DataLayer, EditsOfASavedQueryRowGoToItsUpdateTable) {
  Recordset rs = holding(1, QStringLiteral("Lamp"));
  rs.Edit();
  rs.SetField(QStringLiteral("state"), 1);
  EXPECT_EQ(failureOf([&] { rs.SetField(QStringLiteral("Things.Name"), QStringLiteral("x")); }), Failure::FieldNotUpdatable);
  EXPECT_EQ(failureOf([&] { rs.SetField(QStringLiteral("HoldingID"), 99); }), Failure::FieldNotUpdatable);
  rs.Update();
  EXPECT_EQ(rs.Field(QStringLiteral("State")).toI16(), 1);
  EXPECT_EQ(holdingState(1, QStringLiteral("Lamp")), 1);
  EXPECT_EQ(holdingState(2, QStringLiteral("Lamp")), 1);  // another user's row is untouched
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("AllThings")).Edit(); }), Failure::FieldNotUpdatable);
}

TEST_F(DataLayer, NamesWithApostrophesAreOrdinaryValues) {
  Recordset pet = db->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE \"User Name\" = ?"), {QStringLiteral("gran's pet")});
  ASSERT_EQ(pet.RecordCount(), 1);
  pet.Delete();
  EXPECT_EQ(failureOf([&] { pet.Field(QStringLiteral("ID")); }), Failure::RecordIsDeleted);
  EXPECT_EQ(pet.RecordCount(), 0);
  EXPECT_EQ(db->OpenRecordset(QStringLiteral("Users")).RecordCount(), 1);
}

// A column named "Things.Name" may be written as it stands, as Jet took it; a literal that looks
// like one is left alone.
TEST_F(DataLayer, SavedQueriesWithoutParametersServeAsTables) {
  for (const char* statement : {"SELECT * FROM AllThings WHERE \"Things.Name\" = ?",
                                "SELECT * FROM AllThings WHERE things.name = ? OR Things.Name = 'Things.Name'"}) {
    SCOPED_TRACE(statement);
    Recordset rs = db->OpenRecordset(QString::fromLatin1(statement), {QStringLiteral("tap")});
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.Field(QStringLiteral("Things.Name")).toText(), QStringLiteral("Tap"));
  }
  Recordset ordered = db->OpenRecordset(QStringLiteral("AllThings"));
  EXPECT_EQ(ordered.Field(QStringLiteral("Amount")).toI16(), 0);
}

// Another program may take the file away or put another in its place; writing on would lose it all.
TEST_F(DataLayer, AFileRemovedOrReplacedWhileOpenIsNotWrittenInto) {
  const QString file = folder.at(QStringLiteral("Game.mdb"));
  ASSERT_TRUE(QFile::rename(file, file + QStringLiteral(".moved")));
  ASSERT_TRUE(QFile::copy(file + QStringLiteral(".moved"), file));
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("Things")); }), Failure::DatabaseFileNotFound);
}

// A recordset that ends open can't throw; a new row of it that can't be taken back is told by the
// next statement, once.
TEST_F(DataLayer, ANewRowThatCantBeTakenBackWhenItsRecordsetEndsFailsTheNextStatement) {
  {
    Recordset users = db->OpenRecordset(QStringLiteral("Users"));
    users.AddNew();
    db->QueryDefs(QStringLiteral("End Transaction")).Execute();  // the row's transaction ends under it
  }
  QString message;
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("Things")); }, &message), Failure::DatabaseFailure);
  EXPECT_TRUE(message.contains(QStringLiteral("rollback"), Qt::CaseInsensitive)) << message.toStdString();
  EXPECT_EQ(db->OpenRecordset(QStringLiteral("Things")).RecordCount(), 3);
}

// A row that another program removed can't take a change: the write says so.
TEST_F(DataLayer, AnEditOfARowRemovedMeanwhileFails) {
  Recordset lamp = db->OpenRecordset(QStringLiteral("SELECT * FROM Things WHERE Name = 'Lamp'"));
  db->OpenRecordset(QStringLiteral("SELECT * FROM Things WHERE Name = 'Lamp'")).Delete();
  lamp.Edit();
  lamp.SetField(QStringLiteral("Amount"), 9);
  QString message;
  EXPECT_EQ(failureOf([&] { lamp.Update(); }, &message), Failure::DatabaseFailure);
  EXPECT_TRUE(message.contains(QStringLiteral("no longer in table Things"))) << message.toStdString();
}

TEST_F(DataLayer, MissingThingsFailAndSayWhatWasMissing) {
  QString message;
  EXPECT_EQ(failureOf([&] { db->QueryDefs(QStringLiteral("GetNothing")); }, &message), Failure::ItemNotFound);
  EXPECT_EQ(message, QStringLiteral("Item not found (query 'GetNothing')"));
  QueryDef query = db->QueryDefs(QStringLiteral("GetHolding"));
  EXPECT_EQ(failureOf([&] { query.SetParameter(QStringLiteral("User"), 1); }, &message), Failure::ItemNotFound);
  EXPECT_EQ(message, QStringLiteral("Item not found (parameter 'User' of query 'GetHolding')"));
  query.SetParameter(QStringLiteral("Thing"), QStringLiteral("Lamp"));
  EXPECT_EQ(failureOf([&] { query.OpenRecordset(); }, &message), Failure::TooFewParameters);
  EXPECT_TRUE(message.contains(QStringLiteral("'Select User'")));
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("Things")).Field(QStringLiteral("Colour")); }), Failure::ItemNotFound);
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("Nowhere")); }), Failure::TableNotFound);
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("SELECT * FROM Nowhere")); }), Failure::DatabaseFailure);
  EXPECT_EQ(failureOf([&] { Database::OpenDatabase(folder.path() + QStringLiteral("\\Missing.mdb")); }), Failure::DatabaseFileNotFound);
  db->Close();
  EXPECT_EQ(failureOf([&] { db->OpenRecordset(QStringLiteral("Things")); }), Failure::ObjectClosed);
}

TEST(SqlSources, SplitAtSemicolonsOutsideQuotesAndComments) {
  const auto statements = splitSqlStatements(QStringLiteral("-- a; comment\nCREATE TABLE T (A TEXT);\n/* b; */INSERT INTO T VALUES ('x;y', \"q;\");\n\n"));
  ASSERT_EQ(statements.size(), 2u);
  EXPECT_EQ(statements[0].text, QStringLiteral("CREATE TABLE T (A TEXT)"));
  EXPECT_EQ(statements[0].line, 2);
  EXPECT_EQ(statements[1].text, QStringLiteral("INSERT INTO T VALUES ('x;y', \"q;\")"));
  EXPECT_EQ(statements[1].line, 3);
  EXPECT_EQ(splitSqlStatements(QStringLiteral("INSERT INTO T VALUES ('it''s;')")).front().text, QStringLiteral("INSERT INTO T VALUES ('it''s;')"));
}

TEST(SqlSources, ABadStatementNamesItsPlaceAndLeavesNoFile) {
  TempFolder folder;
  const QString source = folder.write(QStringLiteral("bad.sql"), "CREATE TABLE T (A TEXT);\n\nINSERT INTO Nowhere VALUES (1);\n");
  QString message;
  failureOf([&] { createDatabaseFile(folder.at(QStringLiteral("x.mdb")), {source}); }, &message);
  EXPECT_TRUE(message.contains(source + QStringLiteral(":3:"))) << message.toStdString();
  EXPECT_FALSE(QFile::exists(folder.at(QStringLiteral("x.mdb"))));
}

}  // namespace fh::test
