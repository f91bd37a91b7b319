#include "FailureOf.h"
#include "LiveWorld.h"
#include "SoundFiles.h"

#include "platform/base/Failure.h"
#include "platform/desktop/AudioOutput.h"
#include "platform/desktop/CdPrompt.h"
#include "platform/desktop/PictureButton.h"
#include "platform/desktop/RichTextBox.h"
#include "screens/InfoBox.h"
#include "screens/LendScreens.h"
#include "screens/ObjectHelp.h"
#include "screens/SelectObject.h"
#include "script/Interpreter.h"
#include "sound/SoundControls.h"
#include "sound/cSoundMgr.h"
#include "world/Dialogs.h"
#include "world/SetFile.h"
#include "world/cSet.h"

#include <QFile>

namespace fh::test {
namespace {

// Ada's choices in the small world (Choices.sql), opened by their script commands, with the
// "Switch" sound loaded and a picture for two of the shower heads.
class ChoiceScreens : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    writeStrip(resources, QStringLiteral("OldHead.bmp"), {Qt::red}, 20);
    writeStrip(resources, QStringLiteral("Standard.bmp"), {Qt::blue}, 20);
    CloseAudioOutput();
    resources.makeFolder(QStringLiteral("Audio"));
    SoundMgr().Init();
    resources.write(QStringLiteral("Audio/Switch.wav"), toneWave(3000));
    ASSERT_TRUE(SoundMgr().LoadSound(QStringLiteral("Switch.wav"), QStringLiteral("Switch")));
    LoadSet(QStringLiteral("Small.set"));
    ModalOpen = false;
    LendChoiceScreens();
  }
  void TearDown() override {
    SoundMgr().UnloadSounds();
    CloseAudioOutput();
    soundControls().CurrentSound = 0;
    ModalOpen = false;
    LiveWorld::TearDown();
  }
  QStringList moreRows() const override { return {QStringLiteral(FH_SOURCE_DIR "/tests/screens/Choices.sql")}; }

  // Opens a container's choice as its script line does; `player` works the screen meanwhile.
  void choose(const char* container, const std::function<void(SelectObject&)>& player) {
    ui.queueModal([player](QWidget& form) { player(dynamic_cast<SelectObject&>(form)); });
    RunScriptLine(QStringLiteral("showcontainer ") + QLatin1String(container));
  }
  void info(const char* name, const std::function<void(InfoBox&)>& player) {
    ui.queueModal([player](QWidget& form) { player(dynamic_cast<InfoBox&>(form)); });
    RunScriptLine(QStringLiteral("showinfobox ") + QLatin1String(name));
  }
  // Whether the last click sounded the switch; the channel is silent again afterwards.
  static bool switched() {
    const bool played = soundControls().CurrentSound == 0;
    soundControls().StopSound(0);
    return played;
  }
  static QColor picture(const SelectObject& screen) {
    return screen.Image1->pixmap().isNull() ? QColor() : screen.Image1->pixmap().toImage().pixelColor(0, 0);
  }
  QString adasObject(const QString& container) { return row(container).Field(QStringLiteral("CurrentObject")).toText(); }
};

using ObjectRing = ChoiceScreens;
using ObjectModes = ChoiceScreens;
using ObjectChoice = ChoiceScreens;
using InitMessages = ChoiceScreens;
using InfoBoxes = ChoiceScreens;

TEST_F(ObjectRing, OpensOnTheStandingObjectAndWalksRoundBothWaysWithTheSwitch) {
  const QPoint centred = view().pictureOnScreen().topLeft() + QPoint(632 / 2 - 320 / 2, 390 / 2 - 240 / 2);
  choose("shower", [centred](SelectObject& screen) {
    EXPECT_EQ(screen.geometry(), QRect(centred, QSize(320, 240)));
    EXPECT_EQ(screen.ObjectName->text(), QStringLiteral("Standard Head"));
    for (const QLabel* worldText : {screen.ObjectName, screen.Description}) EXPECT_EQ(worldText->textFormat(), Qt::PlainText);
    EXPECT_EQ(picture(screen), QColor(Qt::blue));
    EXPECT_TRUE(ModalOpen);
    const std::pair<PictureButton*, const char*> walk[] = {
        {screen.btnRight, "Fine Spray"}, {screen.btnRight, "Old Head"}, {screen.btnLeft, "Fine Spray"}, {screen.btnLeft, "Standard Head"}};
    for (const auto& [button, expected] : walk) {
      button->click();
      EXPECT_EQ(screen.ObjectName->text(), QLatin1String(expected));
      EXPECT_TRUE(switched()) << expected;
    }
    screen.btnRight->click();
    EXPECT_EQ(picture(screen), QColor());  // Fine Spray has no picture: the old one goes
    screen.btnOK->click();
  });
}

TEST_F(ObjectRing, OpensOnTheFirstWhenNothingOrSomethingUnknownStands) {
  choose("kettle", [](SelectObject& screen) {
    EXPECT_EQ(screen.ObjectName->text(), QStringLiteral("Full Kettle"));
    screen.btnOK->click();
  });
  store(QStringLiteral("CurrentObject"), QStringLiteral("Golden Head"), QStringLiteral("Shower"));
  choose("SHOWER", [](SelectObject& screen) {
    EXPECT_EQ(screen.ObjectName->text(), QStringLiteral("Old Head"));
    EXPECT_EQ(picture(screen), QColor(Qt::red));
    screen.btnOK->click();
  });
}

TEST_F(ObjectModes, SavingsShowTheTextOrTheRateSummaryAndTheModeStaysWhileWalking) {
  choose("shower", [](SelectObject& screen) {
    EXPECT_EQ(screen.Description->text(), QStringLiteral("Pours 2.5 gallons a minute."));
    // Old Head has no savings text: its rates are summed up instead.
    const std::pair<PictureButton*, const char*> steps[] = {
        {screen.btnSavings, "Saves 20 gallons a shower."}, {screen.btnLeft, "\nResource usage summary:\n\nDaily Water (gallons) rate = 40"},
        {screen.btnRight, "Saves 20 gallons a shower."}, {screen.btnRight, "Saves 28 gallons a shower."},
        {screen.btnInformation, "Pours 1.5 gallons a minute."}};
    for (const auto& [button, description] : steps) {
      button->click();
      EXPECT_EQ(screen.Description->text(), QLatin1String(description)) << description;
    }
    screen.btnSavings->click();
    screen.btnOK->click();
  });
  choose("shower", [](SelectObject& screen) {
    EXPECT_EQ(screen.Description->text(), QStringLiteral("Pours 1.5 gallons a minute."));
    screen.btnOK->click();
  });
}

TEST_F(ObjectChoice, OkWritesTheSetAndThePlayersRowAtOnceAndSaysSoEvenForTheSameObject) {
  const i16 before = CurrentScore;
  choose("shower", [this](SelectObject& screen) {
    screen.btnRight->click();
    screen.btnOK->click();
    EXPECT_FALSE(ModalOpen);
    EXPECT_EQ(adasObject(QStringLiteral("Shower")), QStringLiteral("Fine Spray"));
  });
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("shower")).CurrentObject, QStringLiteral("Fine Spray"));
  EXPECT_EQ(text(), QStringLiteral("Shower Head set to Fine Spray"));
  EXPECT_LT(CurrentScore, before);  // the refresh after the screen

  ShowDialogString(QStringLiteral("something else"));
  choose("shower", [](SelectObject& screen) { screen.btnOK->click(); });
  EXPECT_EQ(text(), QStringLiteral("Shower Head set to Fine Spray"));
  EXPECT_EQ(adasObject(QStringLiteral("Shower")), QStringLiteral("Fine Spray"));
}

TEST_F(ObjectChoice, HelpLiesOverTheScreenAndLeavesItAsItWas) {
  choose("shower", [this](SelectObject& screen) {
    screen.btnSavings->click();
    screen.btnRight->click();
    ui.queueModal([](QWidget& form) {
      auto& help = dynamic_cast<ObjectHelp&>(form);
      EXPECT_EQ(help.Title->text(), QStringLiteral("Shower Head"));
      EXPECT_EQ(help.Title->textFormat(), Qt::PlainText);
      EXPECT_EQ(help.HelpText->Text(), QStringLiteral("Pick the head that pours least."));
      help.btnOK->click();
    });
    screen.btnHelp->click();
    EXPECT_TRUE(ModalOpen);
    EXPECT_EQ(screen.ObjectName->text(), QStringLiteral("Fine Spray"));
    EXPECT_EQ(screen.Description->text(), QStringLiteral("Saves 28 gallons a shower."));
    screen.btnOK->click();
  });
  choose("kettle", [this](SelectObject& screen) {
    ui.queueModal([](QWidget& form) {
      EXPECT_EQ(dynamic_cast<ObjectHelp&>(form).HelpText->Text(), QStringLiteral("No help available, try to make the wise choice!"));
      form.hide();
    });
    screen.btnHelp->click();
    screen.btnOK->click();
  });
}

// A missing picture asks for the CD, and OK tries the picture again.
TEST_F(ObjectChoice, AMissingPictureAsksForTheCd) {
  const QString file = resources.at(QStringLiteral("Graphics/Standard.bmp"));
  const QString aside = file + QStringLiteral(".aside");
  QFile::rename(file, aside);
  ui.onMessageBox = [&](const QString&) { QFile::rename(aside, file); };
  choose("shower", [](SelectObject& screen) {
    EXPECT_EQ(picture(screen), QColor(Qt::blue));
    screen.btnOK->click();
  });
  EXPECT_EQ(messages(), QStringList{kInsertCdText});
}

// Each message hides the screen, and it is shown all the same, empty; with no objects OK fails.
TEST_F(InitMessages, AContainerWithoutARowOrObjectsIsToldAndTheScreenComesUpEmpty) {
  choose("nosuch", [](SelectObject& screen) {
    EXPECT_EQ(screen.ObjectName->text(), QString());
    EXPECT_EQ(screen.Description->text(), QString());
    EXPECT_EQ(failureOf([&screen] { screen.btnOK_Click(); }), Failure::NoCurrentRecord);
    screen.hide();
  });
  EXPECT_EQ(messages(), QStringList({QStringLiteral("No User-Containre entry for nosuch check database and try again."),
                                     QStringLiteral("No objects for  nosuch check database and try again.")}));
  choose("lamp", [](SelectObject& screen) { screen.hide(); });
  EXPECT_EQ(messages().size(), 3);
  EXPECT_EQ(messages().back(), QStringLiteral("No objects for  lamp check database and try again."));
}

TEST_F(InfoBoxes, ShowTheirRowOrTheNameOverNotFoundAndRefreshTheShotOnClosing) {
  QPixmap red(10, 10);
  red.fill(Qt::red);
  view().DisplayView->PaintPicture(red, 60, 60);
  ASSERT_EQ(shown(65, 65), QColor(Qt::red));
  info("dripfacts", [](InfoBox& box) {
    EXPECT_EQ(box.Title->text(), QStringLiteral("Drip Facts"));
    EXPECT_EQ(box.Title->textFormat(), Qt::PlainText);
    EXPECT_EQ(box.Content->Text(), QStringLiteral("A drip a second wastes 3,000 gallons a year.\nFix the washer."));
    EXPECT_TRUE(ModalOpen);
    box.btnOK->click();
  });
  EXPECT_FALSE(ModalOpen);
  EXPECT_EQ(shown(65, 65), QColor(Qt::gray));  // the backdrop drawn anew over what was painted

  info("NoSuchBox", [](InfoBox& box) {
    EXPECT_EQ(box.Title->text(), QStringLiteral("nosuchbox"));
    EXPECT_EQ(box.Content->Text(), QStringLiteral("< NOT FOUND >"));
    box.btnOK->click();
  });
}

}  // namespace
}  // namespace fh::test
