#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/files/Settings.h"
#include "sound/cSoundMgr.h"
#include "startup/DirectoryLists.h"
#include "startup/Main.h"
#include "startup/Splash.h"
#include "startup/frmSetup.h"

#include "ScriptedUi.h"
#include "SessionFixture.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

namespace fh::test {

namespace {

const QString kApp = QStringLiteral("Fernhollow");
const QString kSection = QStringLiteral("Settings");

void storeSetting(const QString& key, const QString& value) { SaveSetting(kApp, kSection, key, value); }
QString storedSetting(const QString& key) { return GetSetting(kApp, kSection, key, QStringLiteral("<absent>")); }

// The player points frmSetup at a folder and presses OK.
std::function<void(QWidget&)> chooseFolder(const QString& folder) {
  return [folder](QWidget& form) {
    auto& setup = dynamic_cast<frmSetup&>(form);
    setup.Dir1->setPath(folder);
    setup.btnOK_Click();
  };
}

class StartUp : public testing::Test {
 protected:
  void SetUp() override {
    storeSetting(QStringLiteral("ResourcePath"), QString());
    storeSetting(QStringLiteral("PanBase"), QStringLiteral("1"));
    ResourcePath.clear();
    SoundMgr().PanBase = 0;
  }
  TempFolder tree;
};

}  // namespace

TEST_F(StartUp, FirstRunInsideTheResourceTreeAsksNothing) {
  WorkingDirectory here(tree.path());
  tree.write(QStringLiteral("Graphics/Menu.bmp"));
  for (const char* name : {"opening.bmp", "slide03.bmp"}) tree.write(QStringLiteral("Graphics/") + QLatin1String(name), pictureBytes({16, 16}));
  ScriptedUi ui;
  Main();
  EXPECT_TRUE(ui.shown().empty());
  EXPECT_EQ(ResourcePath, QString());
  EXPECT_EQ(SoundMgr().PanBase, 1);
  EXPECT_TRUE(TheSplash().isVisible());  // the opening screen is the last step
  UnloadSplash();
}

TEST_F(StartUp, StoredResourcePathIsUpperCasedAndStillFound) {
  WorkingDirectory elsewhere(QStringLiteral("/"));
  tree.write(QStringLiteral("cd/Graphics/Menu.bmp"));
  storeSetting(QStringLiteral("ResourcePath"), tree.path() + QStringLiteral("/cd\\"));
  ScriptedUi ui;
  InitProgram();
  EXPECT_EQ(ResourcePath, (tree.path() + QStringLiteral("/cd\\")).toUpper());
  EXPECT_TRUE(ui.shown().empty());
  EXPECT_TRUE(ResourcesPresent());
}

TEST_F(StartUp, GraphicsWithOnlySubFoldersIsNoResourceTree) {
  tree.makeFolder(QStringLiteral("Graphics/Rooms"));
  ResourcePath = tree.path() + u'\\';
  EXPECT_FALSE(ResourcesPresent());
  tree.write(QStringLiteral("Graphics/Rooms.bmp"));
  EXPECT_TRUE(ResourcesPresent());
}

TEST_F(StartUp, SetupComesBackUntilAFolderWithGraphicsIsChosen) {
  WorkingDirectory elsewhere(tree.makeFolder(QStringLiteral("empty")));
  const QString wrong = tree.makeFolder(QStringLiteral("Wrong"));
  const QString right = tree.path() + QStringLiteral("/Right");
  tree.write(QStringLiteral("Right/Graphics/Menu.bmp"));
  storeSetting(QStringLiteral("PanBase"), QStringLiteral("0"));

  ScriptedUi ui;
  ui.queueModal(chooseFolder(wrong));
  ui.queueModal(chooseFolder(right));
  InitProgram();

  ASSERT_EQ(ui.shown().size(), 2u);
  EXPECT_EQ(ui.shown()[0].text, QStringLiteral("frmSetup"));
  // OK stores the folder as chosen, with a backslash and without upper-casing.
  EXPECT_EQ(ResourcePath, right + u'\\');
  EXPECT_EQ(storedSetting(QStringLiteral("ResourcePath")), right + u'\\');
  // A PanBase of 0 is repaired by OK, and the repaired value is what start-up reads afterwards.
  EXPECT_EQ(storedSetting(QStringLiteral("PanBase")), QStringLiteral("1"));
  EXPECT_EQ(SoundMgr().PanBase, 1);
}

TEST_F(StartUp, QuitEndsTheProgramWithoutSaving) {
  WorkingDirectory elsewhere(tree.path());
  ScriptedUi ui;
  ui.queueModal([](QWidget& form) { dynamic_cast<frmSetup&>(form).btnCancel_Click(); });
  EXPECT_THROW(InitProgram(), ProgramEnded);
  EXPECT_FALSE(setupForm().isVisible());
  EXPECT_EQ(storedSetting(QStringLiteral("ResourcePath")), QString());
}

// PanBase is read as stored, 0 too, until the setup repairs it; it must be a 16-bit number.
TEST_F(StartUp, PanBaseIsUsedAsStoredUntilSetupIsConfirmedAndMustBeASixteenBitNumber) {
  WorkingDirectory here(tree.path());
  tree.write(QStringLiteral("Graphics/Menu.bmp"));
  ScriptedUi ui;
  for (const auto& [stored, used] : {std::pair{"0", 0}, {"-1200", -1200}}) {
    storeSetting(QStringLiteral("PanBase"), QLatin1String(stored));
    InitProgram();
    EXPECT_EQ(SoundMgr().PanBase, used) << stored;
  }
  storeSetting(QStringLiteral("PanBase"), QStringLiteral("40000"));
  EXPECT_THROW(InitProgram(), RuntimeFailure);
}

}  // namespace fh::test
