#include "LiveWorld.h"

#include "platform/base/Failure.h"
#include "script/ContainerState.h"
#include "world/Dialogs.h"
#include "world/SetFile.h"
#include "world/cSet.h"

namespace fh::test {
namespace {

class ContainerState : public LiveWorld {
 protected:
  void SetUp() override {
    LiveWorld::SetUp();
    LoadSet(QStringLiteral("Small.set"));
  }
  // The state in memory and in Ada's row.
  std::pair<int, int> states(const char* name) {
    const QString container = QString::fromLatin1(name);
    return {CurrentSet->GetContainer(container).CurrentState, stored(QStringLiteral("CurrentState"), container)};
  }
};

TEST_F(ContainerState, SetIsSilentAndOnlyTheExactValueTwoWraps) {
  SetContainer(QStringLiteral("tap"), 5, false);
  EXPECT_EQ(states("Tap"), std::make_pair(5, 5));
  EXPECT_EQ(text(), QStringLiteral("The Porch"));
  ToggleContainer(QStringLiteral("tap"), false);
  EXPECT_EQ(states("Tap"), std::make_pair(6, 6));
}

TEST_F(ContainerState, ToggleGoesOneZeroOneAndTellsThePlayer) {
  ToggleContainer(QStringLiteral("TAP"), false);
  EXPECT_EQ(states("Tap"), std::make_pair(0, 0));
  EXPECT_EQ(text(), QStringLiteral("Kitchen Tap is now fixed"));
  ToggleContainer(QStringLiteral("tap"), false);
  EXPECT_EQ(states("Tap"), std::make_pair(1, 1));
  EXPECT_EQ(LastDialogText, QStringLiteral("Kitchen Tap is now dripping"));
}

// Ada has no row for Radio: memory changes alone, and the shot is refreshed all the same.
TEST_F(ContainerState, AContainerWithoutTheUsersRowIsToldAndChangedInMemoryOnly) {
  view().CurrentHotSpotIndex = 1;
  ToggleContainer(QStringLiteral("radio"), false);
  EXPECT_EQ(messages(), QStringList({QStringLiteral("Can't find Container radio check database and try again.")}));
  EXPECT_EQ(CurrentSet->GetContainer(QStringLiteral("radio")).CurrentState, 1);
  EXPECT_EQ(view().CurrentHotSpotIndex, -1);
  EXPECT_THROW(SetContainer(QStringLiteral("sofa"), 1, false), RuntimeFailure);
}

TEST_F(ContainerState, DialogTextsFromTheTableAreNotRememberedAsTheLastText) {
  ShowDialogString(QStringLiteral("the tap is fixed"));
  ShowDialog(QStringLiteral("hello"));
  EXPECT_EQ(text(), QStringLiteral("Hello there."));
  ShowDialogString(QStringLiteral("last"));
  EXPECT_EQ(text(), QStringLiteral("the tap is fixed"));
  EXPECT_EQ(LastDialogText, QStringLiteral("the tap is fixed"));
  ShowDialog(QStringLiteral("Goodbye"));
  EXPECT_EQ(messages(), QStringList({QStringLiteral("Dialog Goodbye does not exist!")}));
  EXPECT_EQ(text(), QStringLiteral("the tap is fixed"));
  ShowDialog(QString());
  EXPECT_EQ(text(), QString());
}

}  // namespace
}  // namespace fh::test
