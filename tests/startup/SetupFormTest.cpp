#include "game/GameState.h"
#include "startup/DirectoryLists.h"
#include "startup/frmSetup.h"

#include "ScriptedUi.h"
#include "TempFolder.h"

#include <QStorageInfo>

#include <gtest/gtest.h>

namespace fh::test {

TEST(SetupForm, ComingUpShowsTheRootOfTheChosenDrive) {
  TempFolder tree;
  frmSetup& form = setupForm();
  form.Dir1->setPath(tree.path());
  form.show();
  EXPECT_EQ(form.Dir1->path(), form.Drive1->drive());
  EXPECT_EQ(form.Drive1->drive(), QStorageInfo(QDir::currentPath()).rootPath());
  form.hide();
}

TEST(SetupForm, ADriveRootGetsNoSecondSeparator) {
  ScriptedUi ui;
  frmSetup& form = setupForm();
  form.Dir1->setPath(QStringLiteral("/"));
  form.btnOK_Click();
  EXPECT_EQ(ResourcePath, QStringLiteral("/"));
}

TEST(SetupForm, EscapeIsQuit) {
  ScriptedUi ui;
  frmSetup& form = setupForm();
  form.show();
  try {
    form.reject();
    FAIL() << "Escape did not end the program";
  } catch (const QuitCalled& quit) {
    EXPECT_EQ(quit.exitCode, 0);
  }
  EXPECT_FALSE(form.isVisible());
}

TEST(FolderList, ShowsTheChainFromTheRootAndTheSubFolders) {
  TempFolder tree;
  tree.makeFolder(QStringLiteral("Game/audio"));
  tree.makeFolder(QStringLiteral("Game/Graphics"));
  tree.write(QStringLiteral("Game/readme.txt"));
  DirList list;
  list.setPath(tree.path() + QStringLiteral("/Game"));

  const int depth = static_cast<int>(QDir::cleanPath(tree.path() + QStringLiteral("/Game")).count(u'/')) + 1;
  ASSERT_EQ(list.count(), depth + 2);  // files are not listed
  EXPECT_EQ(list.item(0)->text(), QStringLiteral("/"));
  EXPECT_EQ(list.item(depth - 1)->text().trimmed(), QStringLiteral("Game"));
  EXPECT_EQ(list.currentRow(), depth - 1);
  EXPECT_EQ(list.item(depth)->text().trimmed(), QStringLiteral("audio"));
  EXPECT_EQ(list.item(depth + 1)->text().trimmed(), QStringLiteral("Graphics"));

  list.openRow(depth + 1);
  EXPECT_EQ(list.path(), tree.path() + QStringLiteral("/Game/Graphics"));
  list.openRow(0);
  EXPECT_EQ(list.path(), QStringLiteral("/"));
}

}  // namespace fh::test
