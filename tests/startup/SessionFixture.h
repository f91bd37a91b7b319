#pragma once

#include "game/GameState.h"
#include "mainview/ShotView.h"
#include "platform/data/Database.h"
#include "platform/data/SqlScript.h"
#include "screens/SelectMusic.h"
#include "startup/Splash.h"
#include "startup/frmLogin.h"
#include "startup/frmNewUser.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include "ScriptedUi.h"
#include "TempFolder.h"
#include "WorldFixtures.h"

#include <QBuffer>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>

#include <gtest/gtest.h>

#include <stdexcept>

namespace fh::test {

inline QByteArray pictureBytes(QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(QColor(200, 180, 120));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "BMP");
  return bytes;
}

// The small world with two players (PlayersFixture.sql) in a folder of its own: database and set
// file under "Database", and under "cd" every picture that the opening screen, the main view and
// the two shots load.
class SessionFixture : public testing::Test {
 protected:
  void SetUp() override {
    folder.makeFolder(QStringLiteral("Database"));
    const QString sources = QStringLiteral(FH_SOURCE_DIR);
    createDatabaseFile(folder.at(QStringLiteral("Database/Fernhollow.mdb")),
                       {sources + QStringLiteral("/world/database/schema.sql"), sources + QStringLiteral("/world/database/queries.sql"),
                        sources + QStringLiteral("/tests/tools/smallworld/small.sql"),
                        sources + QStringLiteral("/tests/startup/PlayersFixture.sql")});
    folder.write(QStringLiteral("Database/small.set"), savedBytes(makeSet("Small", {makeShot("Porch"), makeShot("Computer")})));
    const std::pair<const char*, QSize> pictures[] = {{"Menu", {640, 480}},  {"opening", {640, 480}},       {"slide03", {317, 211}},
                                                      {"Porch", {632, 390}}, {"PorchDripping", {632, 390}}, {"Desk", {632, 390}},
                                                      {"Drip", {64, 16}}};
    for (const auto& [name, size] : pictures)
      folder.write(QStringLiteral("cd/Graphics/%1.bmp").arg(QLatin1String(name)), pictureBytes(size));

    DatabasePath = folder.at(QStringLiteral("Database")) + u'\\';
    ResourcePath = folder.at(QStringLiteral("cd")) + u'\\';
    MasterPassword = QStringLiteral("oakmeadow");
    GameDB = Database::OpenDatabase(DatabasePath + QStringLiteral("Fernhollow.mdb"));
    // A picture that isn't there would ask for the CD for ever.
    ui.onMessageBox = [](const QString& text) {
      if (text.startsWith(QStringLiteral("Please insert"))) throw std::runtime_error("a picture is missing");
    };
  }

  void TearDown() override {
    UnloadSelectMusic();
    loginForm().hide();
    newUserForm().hide();
    resetGameState();
    UnloadShotView();
    UnloadSplash();
  }

  // The row as another program would see it.
  Recordset userRow(int id) {
    return Database::OpenDatabase(DatabasePath + QStringLiteral("Fernhollow.mdb"))
        ->OpenRecordset(QStringLiteral("SELECT * FROM Users WHERE ID = ?"), {id});
  }

  TempFolder folder;
  ScriptedUi ui;
};

// The player picks a name in the login list and types a password.
inline void choosePlayer(frmLogin& login, const QString& name, const QString& password) {
  const QList<QListWidgetItem*> found = login.UserList->findItems(name, Qt::MatchFixedString);
  ASSERT_EQ(found.size(), 1) << name.toStdString();
  login.UserList->setCurrentItem(found.front());
  login.txtPassword->setText(password);
}

}  // namespace fh::test
