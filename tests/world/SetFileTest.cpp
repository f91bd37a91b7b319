#include "WorldFixtures.h"

#include "FailureOf.h"
#include "TempFolder.h"
#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "world/SetFile.h"

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

  TempFolder folder;
};

TEST_F(SetFileTest, SetWithoutNameIsSavedAsUntiltled) {
  CurrentSet = std::make_shared<cSet>();
  SaveSet();
  const QByteArray bytes = fileBytes(folder.at(QStringLiteral("Untiltled.set")));
  ASSERT_EQ(bytes.size(), 71);
  EXPECT_EQ(bytes.mid(3, 64), QByteArray(64, ' '));
}

TEST_F(SetFileTest, SaveReplacesTheOldFileOfTheName) {
  folder.write(QStringLiteral("World.set"), QByteArray(1000, 'x'));
  CurrentSet = std::make_shared<cSet>(makeSet(QStringLiteral("World")));
  SaveSet();
  EXPECT_EQ(fileBytes(folder.at(QStringLiteral("World.set"))), savedBytes(*CurrentSet));
}

TEST_F(SetFileTest, LoadOfNoNameDoesNothingAndOfAMissingFileFails) {
  const auto before = std::make_shared<cSet>();
  CurrentSet = before;
  LoadSet(QString());
  EXPECT_EQ(CurrentSet, before);
  EXPECT_EQ(failureOf([] { LoadSet(QStringLiteral("Nowhere.set")); }), Failure::FileNotFound);
}

}  // namespace
}  // namespace fh::test
