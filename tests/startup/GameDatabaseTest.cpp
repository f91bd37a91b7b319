#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/data/Database.h"
#include "platform/data/SqlScript.h"
#include "world/SetFile.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include "TempFolder.h"
#include "WorldFixtures.h"

#include <gtest/gtest.h>

namespace fh::test {

namespace {

// The game's schema and saved queries with a small test world of four players:
// Ada (1) as she started, Wendy (2) with a wise home, pat (3) half way, Max (4) worse than the start.
class GameDatabase : public testing::Test {
 protected:
  void SetUp() override {
    const QString world = QStringLiteral(FH_SOURCE_DIR "/world/database/");
    createDatabaseFile(folder.at(QStringLiteral("Fernhollow.mdb")),
                       {world + QStringLiteral("schema.sql"), world + QStringLiteral("queries.sql"),
                        QStringLiteral(FH_SOURCE_DIR "/tests/startup/GameDatabaseFixture.sql")});
    db = Database::OpenDatabase(folder.at(QStringLiteral("Fernhollow.mdb")));
  }

  Recordset open(const QString& query, const std::vector<std::pair<QString, QVariant>>& parameters = {}) {
    QueryDef saved = db->QueryDefs(query);
    for (const auto& [name, value] : parameters) saved.SetParameter(name, value);
    return saved.OpenRecordset();
  }
  // The player's rows, as a new player's are made.
  void makeRows(int userId) {
    QueryDef action = db->QueryDefs(QStringLiteral("Make New User"));
    action.SetParameter(QStringLiteral("User ID"), userId);
    action.Execute();
  }
  double number(const QString& query, const QString& column, int userId = -1) {
    Recordset rs = userId < 0 ? open(query) : open(query, {{QStringLiteral("SelectUserID"), userId}});
    return rs.Field(column).toDouble();
  }
  std::pair<double, double> scores(int userId) {
    return {number("SelectionScore", "SumOfADR", userId), number("StateScore", "CountOfCurrentState", userId)};
  }
  int containerRows(int userId) {
    return db->OpenRecordset(QStringLiteral("SELECT * FROM UserContainers WHERE \"User ID\" = ?"), {userId}).RecordCount();
  }
  QStringList column(Recordset rs, const QString& name) {
    QStringList values;
    for (; !rs.IsEOF(); rs.MoveNext()) values << (rs.Field(name).isNull() ? QStringLiteral("NULL") : rs.Field(name).toText());
    return values;
  }

  TempFolder folder;
  std::shared_ptr<Database> db;
};

}  // namespace

TEST_F(GameDatabase, ScoreHalvesRunFromTheBaselinesToZero) {
  EXPECT_EQ(number(QStringLiteral("ContainerDefaulStateADR"), QStringLiteral("CountOfName")), 3);
  EXPECT_EQ(number(QStringLiteral("ContainerDefaultObjectlADR"), QStringLiteral("SumOfADR")), 117);
  EXPECT_EQ(scores(1), std::make_pair(117.0, 3.0));  // the starting home
  EXPECT_EQ(scores(2), std::make_pair(0.0, 0.0));    // every container wise
  EXPECT_EQ(scores(3), std::make_pair(27.0, 2.0));   // a better bulb, the tap off
  EXPECT_EQ(scores(4), std::make_pair(200.0, 3.0));  // a worse shower head than at the start
}

TEST_F(GameDatabase, NewUserStartsAtTheBaselinesAndMakingRowsTwiceAddsNothing) {
  Recordset users = db->OpenRecordset(QStringLiteral("Users"));
  users.AddNew();
  const int id = users.Field(QStringLiteral("ID")).toLong();
  users.SetField(QStringLiteral("User Name"), QStringLiteral("Zoë"));
  users.SetField(QStringLiteral("Password"), QStringLiteral("x"));
  users.SetField(QStringLiteral("Current Shot"), 0);
  users.Update();
  makeRows(id);
  EXPECT_EQ(containerRows(id), 5);
  makeRows(id);
  EXPECT_EQ(containerRows(id), 5);
  EXPECT_EQ(scores(id), std::make_pair(117.0, 3.0));

  Recordset zoe = db->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {id});
  EXPECT_EQ(zoe.Field(QStringLiteral("ElapsedTime")).toSingle(), 0.0f);
  EXPECT_FALSE(zoe.Field(QStringLiteral("HasWonGame")).toBool());

  // A player kept from before a container was added gets just that container's row.
  makeRows(1);
  EXPECT_EQ(containerRows(1), 5);
}

// The removal's steps are seen at work in the login; besides them, a player's rows go with the
// player's own row, and none can be made for a player who isn't there.
TEST_F(GameDatabase, RemovalLeavesNothingOfThePlayer) {
  db->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = 3")).Delete();
  EXPECT_EQ(containerRows(3), 0);
  EXPECT_EQ(containerRows(2), 5);  // others keep theirs
  EXPECT_THROW(makeRows(9), RuntimeFailure);
  EXPECT_EQ(containerRows(9), 0);
}

TEST_F(GameDatabase, GetContainerEditsThisUsersRowOnly) {
  const auto container = [this](const char* name) {
    return open(QStringLiteral("GetContainer"), {{QStringLiteral("SelectContainer"), QString::fromUtf8(name)}, {QStringLiteral("SelectUserID"), 3}});
  };
  Recordset lamp = container("gran'slamp");
  ASSERT_EQ(lamp.RecordCount(), 1);
  EXPECT_EQ(lamp.Field(QStringLiteral("Friendly Name")).toText(), QStringLiteral("Gran's Lamp"));
  lamp.Edit();
  lamp.SetField(QStringLiteral("CurrentState"), 0);
  lamp.SetField(QStringLiteral("CurrentObject"), QStringLiteral("LED Bulb"));
  lamp.Update();
  EXPECT_EQ(scores(3), std::make_pair(17.0, 1.0));
  EXPECT_EQ(scores(1), std::make_pair(117.0, 3.0));
  EXPECT_EQ(container("Nothing").RecordCount(), 0);
}

TEST_F(GameDatabase, ListsComeInTheirAuthoredOrder) {
  EXPECT_EQ(column(db->OpenRecordset(QStringLiteral("SELECT * FROM GetObjects WHERE Containers.Name = ?"), {QStringLiteral("showerhead")}),
                   QStringLiteral("Objects.Name")),
            QStringList({"Standard Shower Head", "Old Shower Head", "WaterSense Shower Head", "Bucket"}));
  EXPECT_EQ(column(open(QStringLiteral("GetSpriteCelSources"), {{QStringLiteral("Sprite"), QStringLiteral("tapwater")}}), QStringLiteral("Sound")),
            QStringList({"Water", "NULL"}));
  EXPECT_EQ(column(open(QStringLiteral("GetHomeCheckupQuestions")), QStringLiteral("ID")), QStringList({"3", "1", "2", "7"}));
  EXPECT_EQ(column(open(QStringLiteral("GetHowAmIDoing"), {{QStringLiteral("SelectUserID"), 3}}), QStringLiteral("Friendly Name")),
            QStringList({"Radio", "Kitchen Tap", "Gran's Lamp", "Shower Head"}));
  EXPECT_EQ(column(open(QStringLiteral("GetAllSprites")), QStringLiteral("Name")), QStringList({"LampGlow", "TapWater"}));
}

TEST_F(GameDatabase, BackdropFollowsThePlayersContainers) {
  auto backdrop = [&](const char* shot, int user) {
    const QVariant target = QString::fromLatin1(shot);
    return column(open(QStringLiteral("SelectBackdrop"), {{QStringLiteral("TargetShot"), target}, {QStringLiteral("SelectUserID"), user}}),
                  QStringLiteral("ImageSource")).value(0, QStringLiteral("none"));
  };
  EXPECT_EQ(backdrop("kitchen", 1), QStringLiteral("KitchenTapRunning.bmp"));
  EXPECT_EQ(backdrop("Kitchen", 2), QStringLiteral("Kitchen.bmp"));
  EXPECT_EQ(backdrop("Lounge", 2), QStringLiteral("LoungeDark.bmp"));
  EXPECT_EQ(backdrop("Attic", 1), QStringLiteral("none"));
}

TEST_F(GameDatabase, SavingTheWorldGivesNewShotsARowWithAnEmptyFriendlyName) {
  DatabasePath = folder.path() + u'\\';
  GameDB = db;
  CurrentSet = std::make_shared<cSet>(makeSet(QStringLiteral("House"), {makeShot(QStringLiteral("Kitchen")), makeShot(QStringLiteral("Gran's Attic"))}));
  SaveSet();
  GameDB.reset();
  CurrentSet.reset();

  const auto shot = [this](const char* name) {
    return db->OpenRecordset(QStringLiteral("SELECT * FROM Shots WHERE Name = ?"), {QString::fromLatin1(name)});
  };
  EXPECT_EQ(shot("Kitchen").Field(QStringLiteral("Freindly Name")).toText(), QStringLiteral("The Kitchen"));
  Recordset added = shot("Gran's Attic");
  ASSERT_EQ(added.RecordCount(), 1);
  EXPECT_EQ(added.Field(QStringLiteral("Freindly Name")).toText(), QString());
  EXPECT_EQ(db->OpenRecordset(QStringLiteral("Shots")).RecordCount(), 4);
}

}  // namespace fh::test
