#include "LiveWorld.h"

#include "authoring/LendAuthoring.h"
#include "authoring/frmHotSpotPopup.h"
#include "authoring/frmSetPopup.h"
#include "authoring/frmShotPopup.h"
#include "game/Screens.h"
#include "world/SetFile.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWindow>

namespace fh::test {
namespace {

// The small world with three hotspots on the porch, 50 pixels apart, in edit mode, with the dialogs lent.
class Authoring : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    auto porch = makeShot("Porch", {makeHotSpot("Tap", {"togglecontainer tap", "showdialog drip"}), makeHotSpot("Door"), makeHotSpot("Lamp")});
    for (i16 i = 0; i < 3; ++i) porch->HotSpots[i]->Left = static_cast<i16>(10 + 50 * i);
    data.write(QStringLiteral("Small.set"), savedBytes(makeSet("Small", {porch, makeShot("Hall"), makeShot("Attic")})));
    LoadSet(QStringLiteral("Small.set"));
    view().show();
    view().modeDebug();
    LendAuthoringDialogs();
  }
  void TearDown() override {
    screens() = Screens{};
    LiveWorld::TearDown();
  }

  // Opens a dialog through its hook with what the author does while it is up.
  template <class Form>
  void open(void (*show)(), std::function<void(Form&)> action) {
    ui.queueModal([action](QWidget& form) { action(static_cast<Form&>(form)); });
    show();
  }
  // Opens the hotspot dialog on the hotspot at `index`, puts `script` in its script box and confirms.
  QStringList confirmScript(i16 index, const QString& script) {
    view().CurrentHotSpotIndex = index;
    open<frmHotSpotPopup>(ShowHotSpotDialog, [&script](frmHotSpotPopup& form) {
      form.txtScript->setPlainText(script);
      form.btnOK->click();
    });
    const cHotSpot& hotspot = *CurrentShot->HotSpot(index);
    return hotspot.ScriptLines.mid(0, hotspot.NumScriptLines);
  }
};

TEST_F(Authoring, TheHotspotDialogShowsTheHotspotOverThePictureAndOkTakesTheBoxes) {
  view().CurrentHotSpotIndex = 0;
  open<frmHotSpotPopup>(ShowHotSpotDialog, [this](frmHotSpotPopup& form) {
    EXPECT_EQ(form.txtName->text(), QStringLiteral("Tap"));
    EXPECT_EQ(form.txtIcon->text(), QStringLiteral("5"));
    EXPECT_TRUE(form.chkEnabled->isChecked());
    EXPECT_EQ(form.txtScript->toPlainText(), QStringLiteral("togglecontainer tap\nshowdialog drip\n"));
    // Centred over the picture, give or take a window frame.
    EXPECT_LE((form.geometry().center() - view().pictureOnScreen().center()).manhattanLength(), 6);
    form.txtName->setText(QStringLiteral("Faucet"));
    form.txtIcon->setText(QStringLiteral("12abc"));
    form.ChkQuiet->setChecked(true);
    form.chkEnabled->setChecked(false);
    form.btnOK->click();
  });
  const cHotSpot& tap = *CurrentShot->HotSpot(0);
  EXPECT_EQ(tap.Name, QStringLiteral("Faucet"));
  EXPECT_EQ(view().Highlight[0]->text(), QStringLiteral("Faucet"));
  EXPECT_EQ(tap.Icon, 12);
  EXPECT_TRUE(static_cast<bool>(tap.Quiet));
  EXPECT_FALSE(static_cast<bool>(tap.Enabled));
  // The break after the last line adds none.
  EXPECT_EQ(tap.ScriptLines, (QStringList{QStringLiteral("togglecontainer tap"), QStringLiteral("showdialog drip")}));
}

TEST_F(Authoring, TheScriptBoxSplitsAtLineEndsAndAnEmptyBoxKeepsTheScript) {
  EXPECT_EQ(confirmScript(1, QStringLiteral("one\n\nthree")), (QStringList{QStringLiteral("one"), QString(), QStringLiteral("three")}));
  EXPECT_EQ(confirmScript(1, QString()), (QStringList{QStringLiteral("one"), QString(), QStringLiteral("three")}));
}

TEST_F(Authoring, EnterIsOkButInTheScriptBoxEscapeDoesNothingAndAnIconWithoutANumberIsZero) {
  const auto press = [](QWidget* box, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(box, &event);
  };
  view().CurrentHotSpotIndex = 1;
  open<frmHotSpotPopup>(ShowHotSpotDialog, [&press](frmHotSpotPopup& form) {
    form.txtIcon->setText(QStringLiteral("abc"));
    press(form.txtScript, Qt::Key_Escape);
    press(form.txtScript, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    press(form.txtRollover, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
  });
  const cHotSpot& door = *CurrentShot->HotSpot(1);
  EXPECT_EQ(door.Icon, 0);
  EXPECT_EQ(door.NumScriptLines, 1);
  EXPECT_TRUE(door.Rollover.isEmpty());
}

TEST_F(Authoring, DelPutsTheLastHotspotInTheGapWithoutAQuestionAndLeavesNoneLit) {
  view().CurrentHotSpotIndex = 0;
  open<frmHotSpotPopup>(ShowHotSpotDialog, [](frmHotSpotPopup& form) { form.btnDel->click(); });
  EXPECT_EQ(CurrentShot->NumHotSpots, 2);
  EXPECT_EQ(CurrentShot->HotSpot(0)->Name, QStringLiteral("Lamp"));
  EXPECT_EQ(view().Highlight[0]->text(), QStringLiteral("Lamp"));
  EXPECT_TRUE(ui.messageBoxes().empty());

  // With no hotspot lit the dialog doesn't come up at all.
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  open<frmHotSpotPopup>(ShowHotSpotDialog, [](frmHotSpotPopup& form) {
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(form.windowHandle() && form.windowHandle()->isVisible());
  });
}

TEST_F(Authoring, NameBoxesRefuseABlankThatTheAddBoxAccepts) {
  const auto typeBlank = [](QLineEdit* box, const QString& before) {
    box->end(false);
    box->insert(QStringLiteral(" "));
    EXPECT_EQ(box->text(), before);
  };
  view().CurrentHotSpotIndex = 0;
  open<frmHotSpotPopup>(ShowHotSpotDialog, [&](frmHotSpotPopup& form) {
    typeBlank(form.txtName, QStringLiteral("Tap"));
    form.btnOK->click();
  });
  open<frmShotPopup>(ShowShotDialog, [&](frmShotPopup& form) {
    typeBlank(form.sName, QStringLiteral("Porch"));
    form.btnOK->click();
  });
  view().EditOff();
  open<frmSetPopup>(ShowSetDialog, [&](frmSetPopup& form) {
    typeBlank(form.sName, QStringLiteral("Small"));
    ui.queueInput(QStringLiteral("Living Room"));
    form.btnAdd->click();
  });
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Living Room"));
}

TEST_F(Authoring, TheSetDialogStartsANewSetFromNothingAndAddShowsTheNewShot) {
  view().EditOff();
  CurrentSet.reset();
  SetPopupForm().Shots->clear();
  open<frmSetPopup>(ShowSetDialog, [this](frmSetPopup& form) {
    EXPECT_EQ(form.sName->text(), QStringLiteral("NewSet"));
    EXPECT_EQ(CurrentSet->nNumShots, 0);
    EXPECT_FALSE(form.btnDel->isEnabled());
    ui.queueInput(QStringLiteral("Cellar"));
    form.btnAdd->click();
  });
  ASSERT_EQ(CurrentSet->nNumShots, 1);
  EXPECT_EQ(CurrentSet->sName, QStringLiteral("NewSet"));
  EXPECT_EQ(CurrentShot, CurrentSet->Shot(0));
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Cellar"));
  EXPECT_EQ(ui.shown().at(1).title, QStringLiteral("Add Shot"));
}

TEST_F(Authoring, DeletingTheOnlyShotEmptiesTheListAndOkThenShowsNothing) {
  view().EditOff();
  CurrentSet = std::make_shared<cSet>();
  CurrentSet->ShowShot(CurrentSet->AddShot(QStringLiteral("Only")));
  open<frmSetPopup>(ShowSetDialog, [](frmSetPopup& form) {
    ASSERT_EQ(form.Shots->count(), 1);
    form.btnDel->click();
    EXPECT_EQ(form.Shots->count(), 0);
    EXPECT_FALSE(form.btnDel->isEnabled());
    EXPECT_TRUE(form.isVisible());
    form.btnOK->click();
  });
  EXPECT_EQ(CurrentSet->nNumShots, 0);
  EXPECT_EQ(CurrentShot, nullptr);
}

TEST_F(Authoring, AShotRenamedInTheShotDialogShowsInTheSetListAtItsNextOpening) {
  open<frmShotPopup>(ShowShotDialog, [](frmShotPopup& form) {
    form.sName->setText(QStringLiteral("Veranda"));
    form.ShotToLeft->setText(QStringLiteral("Garden"));
    form.chkGoElapsedTime->setChecked(true);
    form.btnOK->click();
  });
  EXPECT_EQ(CurrentShot->ShotToLeft, QStringLiteral("Garden"));
  EXPECT_TRUE(static_cast<bool>(CurrentShot->GoElapsedTime));

  // A double click on an entry goes there, as OK does.
  view().EditOff();
  open<frmSetPopup>(ShowSetDialog, [](frmSetPopup& form) {
    ASSERT_EQ(form.Shots->count(), 3);
    EXPECT_EQ(form.Shots->item(0)->text(), QStringLiteral("Veranda"));
    EXPECT_TRUE(form.Shots->item(0)->isSelected());
    form.Shots->setCurrentRow(1);
    emit form.Shots->itemDoubleClicked(form.Shots->item(1));
  });
  EXPECT_EQ(CurrentShot->sName, QStringLiteral("Hall"));
}

}  // namespace
}  // namespace fh::test
