#include "LiveWorld.h"

#include "platform/base/Failure.h"
#include "script/ContainerState.h"
#include "script/Interpreter.h"
#include "world/Dialogs.h"
#include "world/SetFile.h"

namespace fh::test {
namespace {

// The live world with a television, switched on in Ada's house, and TVChannel at its start.
class Television : public LiveWorld {
 protected:
  QStringList moreRows() const override { return {QStringLiteral(FH_SOURCE_DIR "/tests/world/Television.sql")}; }
  void SetUp() override {
    LiveWorld::SetUp();
    LoadSet(QStringLiteral("Small.set"));
    TVChannel = 0;
  }
  void TearDown() override {
    TVChannel = 0;
    StartSetFile.clear();
    LiveWorld::TearDown();
  }

  // A line that gets as far as the film fails there, and the failure names the film.
  static testing::AssertionResult failsAtFilm(const char* line, const char* film) {
    try {
      RunScriptLine(QString::fromLatin1(line));
    } catch (const RuntimeFailure& failure) {
      if (failure.message().contains(QString::fromLatin1(film))) return testing::AssertionSuccess();
      return testing::AssertionFailure() << line << " failed with " << failure.message().toStdString();
    }
    return testing::AssertionFailure() << line << " ran through";
  }
};

// From the start "next" gives channel 1; channel 0 comes up only after the wrap, and "previous"
// from there gives channel 3.
TEST_F(Television, ChannelsStepRoundBothWaysWithTheirCaptionsAndFilms) {
  EXPECT_TRUE(failsAtFilm("showvideo next", "Fernhollow.avi"));
  EXPECT_EQ(TVChannel, 1);
  EXPECT_EQ(text(), QStringLiteral("You are watching The Fernhollow Video"));
  EXPECT_EQ(LastDialogText, text());
  for (const char* film : {"NewsClip.avi", "NewsStory.avi", "School.avi"}) EXPECT_TRUE(failsAtFilm("showvideo next", film));
  EXPECT_EQ(TVChannel, 0);
  EXPECT_EQ(text(), QStringLiteral("You are watching the Student Interview"));
  EXPECT_TRUE(failsAtFilm("showvideo previous", "NewsStory.avi"));
  EXPECT_EQ(TVChannel, 3);
}

TEST_F(Television, WithTheSetOffNothingHappensAndTheScriptGoesOn) {
  SetContainer(QStringLiteral("tv"), 0, false);
  RunScript(QStringLiteral("showvideo next\r\nshowvideo Intro.avi\r\nstartset after"));
  EXPECT_EQ(TVChannel, 0);
  EXPECT_EQ(text(), QStringLiteral("The Porch"));
  EXPECT_EQ(StartSetFile, QStringLiteral("after"));
}

TEST_F(Television, AFilmByNameShowsNoCaptionAndKeepsTheChannel) {
  ShowDialogString(QStringLiteral("before"));
  EXPECT_TRUE(failsAtFilm("showvideo Intro.AVI", "intro.avi"));
  EXPECT_EQ(TVChannel, 0);
  EXPECT_EQ(text(), QStringLiteral("before"));
}

}  // namespace
}  // namespace fh::test
