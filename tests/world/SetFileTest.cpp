#include "WorldFixtures.h"

#include "TempFolder.h"
#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "world/SetFile.h"

#include <QFile>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

class SetFileTest : public testing::Test {
 protected:
  void SetUp() override {
    DatabasePath = folder.path() + QStringLiteral("\\");  // the game's folders end in a backslash
    CurrentSet.reset();
    CurrentShot.reset();
  }
  void TearDown() override {
    DatabasePath.clear();
    CurrentSet.reset();
  }

  QByteArray fileBytes(const QString& name) const {
    QFile file(folder.at(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  TempFolder folder;
};

TEST_F(SetFileTest, SetWithoutNameIsSavedAsUntiltled) {
  CurrentSet = std::make_shared<cSet>();
  SaveSet();
  const QByteArray bytes = fileBytes(QStringLiteral("Untiltled.set"));
  ASSERT_EQ(bytes.size(), 71);
  EXPECT_EQ(bytes.mid(3, 64), QByteArray(64, ' '));
}

TEST_F(SetFileTest, SaveReplacesTheOldFileOfTheName) {
  folder.write(QStringLiteral("World.set"), QByteArray(1000, 'x'));
  CurrentSet = std::make_shared<cSet>(makeSet(QStringLiteral("World")));
  SaveSet();
  EXPECT_EQ(fileBytes(QStringLiteral("World.set")), savedBytes(*CurrentSet));
}

TEST_F(SetFileTest, LoadOfNoNameDoesNothingAndOfAMissingFileFails) {
  const auto before = std::make_shared<cSet>();
  CurrentSet = before;
  LoadSet(QString());
  EXPECT_EQ(CurrentSet, before);
  try {
    LoadSet(QStringLiteral("Nowhere.set"));
    FAIL() << "a missing file was read";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.kind(), Failure::FileNotFound);
  }
}

}  // namespace
}  // namespace fh::test
