#include "SessionFixture.h"

#include <QProcess>

#include <csignal>

namespace fh::test {
namespace {

// The program's end from outside, in a process of its own that plays a game on the fixture's
// database (Ann, player 1, has 0.5 days saved) and is then sent a signal.
class Termination : public SessionFixture {
 protected:
  // The child's exit code, or -1 when it didn't get ready, didn't end or crashed.
  int endWithSignal(int number, const QString& mode = {}) {
    QProcess child;
    // As a desktop starts it: a shell that runs the tests in the background may have left SIGINT
    // ignored, and an ignored signal stays ignored.
    child.setChildProcessModifier([] {
      std::signal(SIGINT, SIG_DFL);
      std::signal(SIGHUP, SIG_DFL);
    });
    child.start(QStringLiteral(FH_PLAYING_PROCESS), {DatabasePath + "Fernhollow.mdb", folder.at("cd"), "0.75", mode});
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

TEST_F(Termination, SigtermEndsTheGameAsExitDoesBeforeTheProgramEnds) {
  EXPECT_EQ(endWithSignal(SIGTERM), 0);
  EXPECT_EQ(savedTime(), 0.75f);
}

TEST_F(Termination, SigintBehindAModalBoxStillSavesThePlayTime) {
  EXPECT_EQ(endWithSignal(SIGINT, QStringLiteral("modal")), 0);
  EXPECT_EQ(savedTime(), 0.75f);
}

TEST_F(Termination, SighupWithNoGameJustEndsTheProgram) {
  EXPECT_EQ(endWithSignal(SIGHUP, QStringLiteral("opening")), 0);
  EXPECT_EQ(savedTime(), 0.5f);
}

}  // namespace
}  // namespace fh::test
