#include "SessionFixture.h"

#include <QProcess>

#include <csignal>

namespace fh::test {
namespace {

// The program's end from outside, in a process of its own that plays a game on the fixture's
// database (Ann, player 1, has 0.5 days saved) for `playTime` days and is then sent a signal.
class Termination : public SessionFixture {
 protected:
  // The child's exit code, or -1 when it didn't get ready, didn't end or crashed.
  int endWithSignal(int number, const char* playTime, const char* mode) {
    QProcess child;
    // As a desktop starts it: a shell that runs the tests in the background may have left SIGINT
    // ignored, and an ignored signal stays ignored.
    child.setChildProcessModifier([] {
      std::signal(SIGINT, SIG_DFL);
      std::signal(SIGHUP, SIG_DFL);
    });
    child.start(QStringLiteral(FH_PLAYING_PROCESS), {DatabasePath + "Fernhollow.mdb", folder.at("cd"), playTime, mode});
    if (!child.waitForReadyRead(15000) || child.readLine().trimmed() != "ready") {
      ADD_FAILURE() << "not ready: " << child.readAllStandardError().toStdString();
      return -1;
    }
    ::kill(static_cast<pid_t>(child.processId()), number);
    if (!child.waitForFinished(15000) || child.exitStatus() != QProcess::NormalExit) return -1;
    return child.exitCode();
  }
  float savedTime() { return userRow(1).Field(QStringLiteral("ElapsedTime")).toSingle(); }
};

// SIGTERM ends the game as Exit does, saving the play time, before the program ends; so does SIGINT
// behind a modal box. With no game SIGHUP just ends the program.
TEST_F(Termination, ASignalEndsTheGameAsExitDoesBeforeTheProgramEnds) {
  const std::tuple<int, const char*, const char*, float> ends[] = {
      {SIGTERM, "0.75", "", 0.75f}, {SIGINT, "1.25", "modal", 1.25f}, {SIGHUP, "2.5", "opening", 1.25f}};
  for (const auto& [number, playTime, mode, saved] : ends) {
    EXPECT_EQ(endWithSignal(number, playTime, mode), 0) << "signal " << number;
    EXPECT_EQ(savedTime(), saved) << "signal " << number;
  }
}

}  // namespace
}  // namespace fh::test
