#include "SessionFixture.h"

#include "platform/desktop/ImagePair.h"
#include "platform/desktop/PictureBox.h"
#include "screens/SelectMusic.h"
#include "startup/Session.h"
#include "world/Players.h"
#include "world/cSet.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

namespace fh::test {
namespace {

class Session : public SessionFixture {
 protected:
  void SetUp() override {
    SessionFixture::SetUp();
    TheSplash().showSplash();
  }
  void queueLogin(const QString& name, const QString& password) {
    ui.queueModal([name, password](QWidget& form) {
      auto& login = dynamic_cast<frmLogin&>(form);
      choosePlayer(login, name, password);
      login.btnOK_MouseUp();
    });
  }
};

TEST_F(Session, StartBringsThePlayerBackAtTheSavedShot) {
  queueLogin(QStringLiteral("Ann"), QStringLiteral("secret"));
  StartGame();
  EXPECT_FALSE(TheSplash().isVisible());
  EXPECT_EQ(CurrentUserName, QStringLiteral("Ann"));
  EXPECT_EQ(GameElapsedTime, 0.5f);
  EXPECT_EQ(StartSetFile, QStringLiteral("small.set"));
  ShotView& view = TheShotView();
  EXPECT_TRUE(view.isVisible());
  EXPECT_EQ(view.DisplayView->MousePointer(), 99);  // cursor 103 is the game's own pointer
  ASSERT_TRUE(CurrentShot);
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Computer"));
  EXPECT_EQ(view.TextWindow->text(), QStringLiteral("The Computer"));  // the welcome gave way at once
}

// A world updated since the last game: the fixture new to Ann starts as a new player's would.
TEST_F(Session, LoginGivesThePlayerTheFixturesAddedSinceTheLastGame) {
  GameDB->OpenRecordset(QStringLiteral("SELECT * FROM UserContainers WHERE \"User ID\" = 1 AND Container = 'Bulb'")).Delete();
  queueLogin(QStringLiteral("Ann"), QStringLiteral("secret"));
  StartGame();
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("bulb")).CurrentObject, QStringLiteral("Old bulb"));
  EXPECT_TRUE(ui.messageBoxes().empty());
}

// Nobody plays a game that can't be kept: a folder the game can't write stops the Start at once.
TEST_F(Session, StartInAFolderThatCantBeWrittenSaysSoBeforeTheLogin) {
  DatabasePath = QStringLiteral("/proc/");
  StartGame();
  ASSERT_EQ(ui.shown().size(), 1u);
  EXPECT_TRUE(ui.shown().front().text.startsWith(QStringLiteral("The game can't save in its database folder")));
  EXPECT_TRUE(TheSplash().isVisible());
  EXPECT_FALSE(ShotViewExists());
}

TEST_F(Session, CancelledLoginGoesBackToTheOpeningScreen) {
  CurrentUserID = 7;
  ui.queueModal([](QWidget& form) { dynamic_cast<frmLogin&>(form).btnCancel_MouseUp(); });
  StartGame();
  EXPECT_TRUE(TheSplash().isVisible());
  EXPECT_FALSE(ShotViewExists());
  EXPECT_EQ(CurrentUserID, 7);
}

TEST_F(Session, ExitSavesThePlayTimeAndTheNextPlayerStartsAfresh) {
  queueLogin(QStringLiteral("Ann"), QStringLiteral("secret"));
  StartGame();
  const i16 baseState = BaseStateADR;
  const i16 baseObject = BaseObjectADR;
  GameElapsedTime += 0.25f;
  SelectMusicForm(TheShotView().pictureOnScreen()).PieceIndex = 2;
  EndGame();
  EXPECT_EQ(SelectMusicForm({}).PieceIndex, 0);  // the music dialog went with the session
  EXPECT_EQ(userRow(1).Field(QStringLiteral("ElapsedTime")).toSingle(), 0.75f);
  EXPECT_FALSE(CurrentSet);
  EXPECT_TRUE(TheSplash().isVisible());
  EXPECT_TRUE(TheSplash().btnStart->upVisible());

  BaseStateADR = BaseObjectADR = 0;
  ModalOpen = true;
  queueLogin(QStringLiteral("Bob"), QStringLiteral("oakmeadow"));
  StartGame();
  EXPECT_EQ(BaseStateADR, baseState);
  EXPECT_EQ(BaseObjectADR, baseObject);
  EXPECT_FALSE(ModalOpen);
  EXPECT_TRUE(UserHasWonGame);
  EXPECT_EQ(TheShotView().TextWindow->text(), QStringLiteral("The Porch"));
}

TEST_F(Session, OpeningScreenCentresThePictureWithTheDesktopAroundIt) {
  Splash& splash = TheSplash();
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  ASSERT_GT(screen.width(), 640);
  EXPECT_EQ(splash.geometry(), screen);
  const QPoint corner((screen.width() - 640) / 2, (screen.height() - 480) / 2);
  EXPECT_EQ(splash.BackPlane->geometry(), QRect(corner, QSize(640, 480)));
  EXPECT_EQ(splash.lblVersion->text(), QStringLiteral("Ver. %1.%2").arg(FH_VERSION_MAJOR).arg(FH_VERSION_MINOR));
  EXPECT_EQ(splash.grab().toImage().pixelColor(0, 0), QColor(0, 128, 128));
}

}  // namespace
}  // namespace fh::test
