#include "ChildRuns.h"

#include "BundledSession.h"

#include "game/GameState.h"
#include "platform/files/Settings.h"
#include "startup/Main.h"
#include "world/cSet.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace fh::bench {

namespace {

const char* const kChildFlag = "--child";

// The high-water mark of this process's own memory. (getrusage would tell the larger peak of the
// fhbench that started it: Linux keeps that count across the exec.)
double peakResidentBytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').front().toDouble() * 1024.0;
  return 0;
}

// Lets the window system show what was shown, as the first paint of a real start does.
void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

int startupChild() {
  // The game as `make play` starts it: inside the resource tree, with no settings of its own.
  QTemporaryDir settings;
  useSettingsFolder(settings.path());
  QDir::setCurrent(StagedResources());
  Main();
  settle();
  return 0;
}

int emptyChild() {
  QWidget window;
  window.showFullScreen();
  settle();
  return 0;
}

int walkChild() {
  BundledSession session;
  session.loadWorld();
  for (i16 shot = 0; shot < CurrentSet->nNumShots; ++shot) {
    CurrentSet->ShowShot(shot);
    settle();
  }
  return 0;
}

}  // namespace

std::optional<int> RunChildMode(int argc, char** argv) {
  if (argc != 3 || std::strcmp(argv[1], kChildFlag) != 0) return std::nullopt;
  const QString mode = QString::fromLatin1(argv[2]);
  int code = 2;
  if (mode == QLatin1StringView("startup")) code = startupChild();
  else if (mode == QLatin1StringView("empty")) code = emptyChild();
  else if (mode == QLatin1StringView("walk")) code = walkChild();
  std::printf("%.0f\n", peakResidentBytes());
  // The game's windows live as long as its process, and it ends the same way, at once.
  std::fflush(stdout);
  std::_Exit(code);
}

ChildRun LaunchChild(const QString& mode) {
  QProcess child;
  QElapsedTimer clock;
  clock.start();
  child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kChildFlag), mode});
  if (!child.waitForFinished(60000) || child.exitCode() != 0)
    throw std::runtime_error("the child run '" + mode.toStdString() + "' failed: " + child.readAllStandardError().toStdString());
  ChildRun run;
  run.seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
  run.peakBytes = child.readAllStandardOutput().trimmed().toDouble();
  return run;
}

}  // namespace fh::bench
