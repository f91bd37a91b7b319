#include "game/GameState.h"
#include "game/Screens.h"
#include "mainview/ElapsedTimeText.h"
#include "mainview/ShotView.h"
#include "platform/base/Failure.h"
#include "platform/desktop/ImagePair.h"
#include "platform/desktop/PictureBox.h"
#include "world/cShot.h"

#include "FailureOf.h"
#include "ScriptedUi.h"
#include "TempFolder.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

const QString kStagedResources = QStringLiteral(FH_STAGE_DIR "/resources/");

// Each test loads the main window afresh on the staged resource tree.
class MainView : public testing::Test {
 protected:
  void SetUp() override {
    UnloadShotView();
    ResourcePath = kStagedResources;
    UserHasWonGame = false;
    ModalOpen = false;
    CurrentShot.reset();
    // The setup dialog belongs to the start-up; a form of its name stands in for it here.
    m_setup.setObjectName(QStringLiteral("frmSetup"));
    screens().setup = [this] { ui().showModal(m_setup); };
  }
  void TearDown() override {
    UnloadShotView();
    CurrentShot.reset();
    screens().setup = nullptr;
  }

 private:
  QWidget m_setup;
};

QImage surface(const ShotView& view) { return view.DisplayView->Image().toImage(); }

TEST_F(MainView, TheFrameStandsInTheMiddleOfTheScreenWithItsControlsInPlace) {
  ShotView& view = TheShotView();
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(view.geometry(), screen);
  const QPoint corner((screen.width() - 640) / 2, (screen.height() - 480) / 2);
  EXPECT_EQ(view.framePosition(), corner);
  EXPECT_EQ(view.DisplayView->geometry(), QRect(corner + QPoint(4, 48), QSize(632, 390)));
  EXPECT_EQ(view.TextWindow->textFormat(), Qt::PlainText);  // a "<b>" of the world is shown, not obeyed
  EXPECT_FALSE(view.Backdrop->isVisibleTo(&view));
  EXPECT_EQ(view.MeterTimer.Interval(), 0);  // no score yet, so the meter doesn't turn
  EXPECT_EQ(view.Score->text(), QStringLiteral("100"));
  EXPECT_EQ(view.ElapsedTimeView->text(), QStringLiteral("0:00:00"));
}

TEST_F(MainView, AMissingResourceTreeAsksForTheFolderFirstAndForTheCdAfter) {
  TempFolder empty;
  ResourcePath = empty.path() + QStringLiteral("/");
  ScriptedUi ui;
  // The player names a folder that is just as empty, then puts the CD in.
  ui.queueModal([](QWidget& form) { form.hide(); });
  ui.queueAnswer(Answer::Ok);
  ui.queueModal([](QWidget& form) { form.hide(); });
  int asked = 0;
  ui.onMessageBox = [&asked](const QString&) {
    if (++asked == 1) ResourcePath = kStagedResources;
  };
  TheShotView();
  ASSERT_GE(ui.shown().size(), 2u);
  EXPECT_EQ(ui.shown()[0].kind, Shown::Kind::Modal);
  EXPECT_EQ(ui.shown()[1].text, QStringLiteral("Please insert the Fernhollow Game CD into the CD-ROM drive."));
  EXPECT_EQ(ui.shown()[1].buttons, Buttons::OkCancel);
  EXPECT_FALSE(TheShotView().BackPlane->pixmap().isNull());
}

// Cursors above a hundred are the game's own pointer (99), which the hover tests see.
TEST_F(MainView, CursorsAboveAHundredAreTheCustomPointer) {
  ShotView& view = TheShotView();
  view.SetCursor(11);
  EXPECT_EQ(view.DisplayView->cursor().shape(), Qt::WaitCursor);
  view.SetCursor(103);
  EXPECT_EQ(view.DisplayView->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(MainView, TheBackdropLoadsOnlyWhenItsNameChangesAndForcingWipesTheSprites) {
  ShotView& view = TheShotView();
  view.SetBackdrop(QStringLiteral("Kitchen.bmp"), false);
  EXPECT_EQ(view.CurrentBackdrop(), QStringLiteral("Kitchen.bmp"));
  const QImage kitchen = surface(view);
  ASSERT_EQ(kitchen.size(), QSize(632, 390));

  QPixmap cel(10, 10);
  cel.fill(Qt::magenta);
  view.DisplayView->PaintPicture(cel, 20, 30);
  view.SetBackdrop(QStringLiteral("Kitchen.bmp"), false);
  EXPECT_EQ(surface(view).pixel(25, 35), QColor(Qt::magenta).rgb());  // nothing happened
  view.SetBackdrop(QStringLiteral("Kitchen.bmp"), true);
  EXPECT_EQ(surface(view), kitchen);

  // Another case is another name: loaded again (and found, as names are case-blind on disk).
  view.SetBackdrop(QStringLiteral("KITCHEN.BMP"), false);
  EXPECT_EQ(view.CurrentBackdrop(), QStringLiteral("KITCHEN.BMP"));
  view.SetBackdrop(QStringLiteral("Hall.bmp"), false);
  EXPECT_NE(surface(view), kitchen);
}

TEST_F(MainView, AMissingBackdropAsksForTheCdUntilItLoadsAndCancelOpensTheSetup) {
  ShotView& view = TheShotView();
  ScriptedUi ui{{Answer::Ok, Answer::Cancel}};
  ui.queueModal([](QWidget& form) {
    ResourcePath = kStagedResources;
    form.hide();
  });
  TempFolder empty;
  ResourcePath = empty.path() + QStringLiteral("/");
  view.SetBackdrop(QStringLiteral("Garden.bmp"), false);
  const std::vector<Shown> messages = ui.messageBoxes();
  ASSERT_EQ(messages.size(), 2u);
  EXPECT_EQ(messages[0].text, QStringLiteral("Please insert the Fernhollow Game CD into the CD-ROM drive."));
  EXPECT_EQ(ui.shown().back().kind, Shown::Kind::Modal);
  EXPECT_EQ(view.CurrentBackdrop(), QStringLiteral("Garden.bmp"));
  EXPECT_FALSE(surface(view).isNull());
}

// A picture outside the resource tree is never read: its name is a missing file, and the prompt
// says which. The player gives up in the setup form.
TEST_F(MainView, ABackdropNamedOutsideTheTreeIsAMissingFile) {
  ShotView& view = TheShotView();
  TempFolder tree;
  QImage outside(8, 8, QImage::Format_RGB32);
  outside.fill(Qt::red);
  ASSERT_TRUE(outside.save(tree.at(QStringLiteral("outside.bmp")), "BMP"));
  tree.makeFolder(QStringLiteral("res/Graphics"));
  ResourcePath = tree.path() + QStringLiteral("/res/");
  ScriptedUi ui{{Answer::Cancel}};
  ui.queueModal([](QWidget& form) {
    form.hide();
    EndProgram();
  });
  EXPECT_THROW(view.SetBackdrop(QStringLiteral("..\\..\\outside.bmp"), false), ProgramEnded);
  ASSERT_EQ(ui.messageBoxes().size(), 1u);
  EXPECT_EQ(ui.messageBoxes()[0].details, QStringLiteral("Missing file: ") + ResourcePath + QStringLiteral("graphics\\..\\..\\outside.bmp"));
}

TEST_F(MainView, TheScoreSetsTheMetersSpeedAndAWinSaysWise) {
  ShotView& view = TheShotView();
  const std::pair<i16, int> intervals[] = {{100, 133}, {50, 550}, {1, 958}, {110, 50}, {40, 633}};
  for (const auto& [score, interval] : intervals) {
    view.SetScore(score);
    EXPECT_EQ(view.MeterTimer.Interval(), interval) << score;
    EXPECT_EQ(CurrentScore, score);
    EXPECT_EQ(view.Score->text(), QString::number(score));
  }
  // The distance from 110 is a 16-bit difference: far below 0 it overflows instead of wrapping.
  EXPECT_EQ(failureOf([&] { view.SetScore(-32700); }), Failure::Overflow);
  UserHasWonGame = true;
  view.SetScore(37);
  EXPECT_EQ(view.Score->text(), QStringLiteral("wise!"));
  EXPECT_EQ(view.MeterTimer.Interval(), 3000);
  EXPECT_EQ(CurrentScore, 1);
}

// The meter is no control: its cells are painted onto the frame, above the score.
TEST_F(MainView, TheMeterTurnsCellByCellOnlyOnceTheWindowHasBeenActivated) {
  ShotView& view = TheShotView();
  const auto meterShown = [&view] {
    return view.BackPlane->pixmap().toImage().copy(240, 0, 32, 29).convertToFormat(QImage::Format_RGB32);
  };
  const auto cell = [&view](int index) { return view.MeterAnim.GraphicCell(index).toImage().convertToFormat(QImage::Format_RGB32); };
  const QImage frameAlone = meterShown();
  view.SetScore(100);
  QCoreApplication::processEvents();
  EXPECT_FALSE(view.WindowActivated());
  view.MeterTimer.onTick();
  EXPECT_EQ(view.MeterFrame(), 0);
  EXPECT_EQ(meterShown(), frameAlone);

  view.showView();
  for (int i = 0; i < 50 && !view.WindowActivated(); ++i) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  ASSERT_TRUE(view.WindowActivated());
  for (int tick = 1; tick <= 24; ++tick) {
    view.MeterTimer.onTick();
    EXPECT_EQ(view.MeterFrame(), tick % 24);
    EXPECT_EQ(meterShown(), cell(tick - 1)) << tick;
  }
  view.hide();
}

// The hidden boxes are an inlet to the displays, and only to them.
TEST_F(MainView, TextsWrittenToTheHiddenMirrorsShowInScoreAndPlayTimeAlone) {
  ShotView& view = TheShotView();
  EXPECT_FALSE(view.InScore->isVisibleTo(&view));
  CurrentScore = 55;
  view.InScore->setText(QStringLiteral("42"));
  view.InElapsedTimeView->setText(QStringLiteral("1:02:03"));
  EXPECT_EQ(view.Score->text(), QStringLiteral("42"));
  EXPECT_EQ(view.ElapsedTimeView->text(), QStringLiteral("1:02:03"));
  EXPECT_EQ(CurrentScore, 55);
}

TEST(ElapsedTimeText, HoursHaveNoLeadingZeroAndTheClockWrapsAtADay) {
  // A count a hair short of a second shows that second.
  const std::pair<double, const char*> cases[] = {
      {0, "0:00:00"}, {5.0 / 24, "5:00:00"}, {(61 - 0.001) / 86400, "0:01:01"}, {13.0 / 24 + 7.0 / 1440 + 9.0 / 86400, "13:07:09"}};
  for (const auto& [days, text] : cases) EXPECT_EQ(ElapsedTimeText(static_cast<float>(days)), QLatin1String(text)) << text;
  EXPECT_EQ(ElapsedTimeText(1.0f + 2.0f / 86400.0f), QStringLiteral("0:00:02"));
}

}  // namespace
}  // namespace fh::test
