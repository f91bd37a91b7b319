#include "BundledSession.h"
#include "LargeWorld.h"
#include "SqliteFloor.h"

#include "game/GameState.h"
#include "mainview/ShotView.h"
#include "platform/desktop/PictureBox.h"
#include "script/Interpreter.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <vector>

// What a student's pointer and clicks cost: each against the least the same work could cost.
namespace fh::bench {

namespace {

double p99(const std::vector<double>& values) {
  std::vector<double> sorted = values;
  std::sort(sorted.begin(), sorted.end());
  return sorted[static_cast<std::size_t>(0.99 * static_cast<double>(sorted.size() - 1))];
}

void send(QWidget* to, QEvent::Type type, QPoint at) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, to->mapToGlobal(at), button, button, Qt::NoModifier);
  QCoreApplication::sendEvent(to, &event);
}

// The porch light of the bundled world's first shot: its script plays the switch and toggles the
// light, which writes the database and computes score, backdrop and sprites anew.
void ClickWithRefresh(benchmark::State& state) {
  BundledSession session;
  session.loadWorld();
  ShotView& view = TheShotView();
  std::shared_ptr<cHotSpot> light;
  for (const auto& spot : CurrentShot->HotSpots)
    if (spot && spot->Name == QLatin1StringView("PorchLight")) light = spot;
  if (!light) {
    state.SkipWithError("the bundled world has no PorchLight on its first shot");
    return;
  }
  const QPoint centre(light->Left + light->Width / 2, light->Top + light->Height / 2);
  send(view.DisplayView, QEvent::MouseMove, centre);
  view.GameClock_Timer();
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    send(view.DisplayView, QEvent::MouseButtonPress, centre);
    view.DisplayView->repaint();
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
}

void LoadBundledWorld(benchmark::State& state) {
  BundledSession session;
  for (auto _ : state) session.loadWorld();
}

void ReadBundledWorldFile(benchmark::State& state) {
  BundledSession session;
  for (auto _ : state) {
    QFile file(session.setFile());
    file.open(QIODevice::ReadOnly);
    benchmark::DoNotOptimize(file.readAll());
  }
}

// The session's set file becomes the large world; its database stays the bundled one.
void writeLargeWorld(const BundledSession& session) {
  QFile file(session.setFile());
  const QByteArray bytes = SetFileBytes(LargeWorld());
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
    throw std::runtime_error("can't write the large world to " + session.setFile().toStdString());
}

void LoadLargeWorld(benchmark::State& state) {
  BundledSession session;
  writeLargeWorld(session);
  for (auto _ : state) session.loadWorld();
}

void ReadLargeWorldFile(benchmark::State& state) {
  BundledSession session;
  writeLargeWorld(session);
  for (auto _ : state) {
    QFile file(session.setFile());
    file.open(QIODevice::ReadOnly);
    benchmark::DoNotOptimize(file.readAll());
  }
}

// A shot of 19 hotspots, the most a shot is drawn with, and a point in the last of them.
cShot nineteenHotSpots() {
  cShot shot;
  for (i16 h = 0; h < 19; ++h) shot.AddHotSpot(static_cast<i16>(h * 32), 10, 30, 300);
  return shot;
}

void CheckHotSpots(benchmark::State& state) {
  const cShot shot = nineteenHotSpots();
  i16 x = 18 * 32 + 5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(x);
    benchmark::DoNotOptimize(shot.CheckHotSpots(x, 100));
  }
}

// The least a hit test can do: the same comparisons over a plain array.
void CheckRectangles(benchmark::State& state) {
  struct Rectangle { int left, top, width, height; };
  std::vector<Rectangle> rectangles;
  for (int h = 0; h < 19; ++h) rectangles.push_back({h * 32, 10, 30, 300});
  int x = 18 * 32 + 5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(x);
    int hit = -1;
    for (int i = 0; i < static_cast<int>(rectangles.size()); ++i) {
      const Rectangle& r = rectangles[static_cast<std::size_t>(i)];
      if (x > r.left && x < r.left + r.width && 100 > r.top && 100 < r.top + r.height) {
        hit = i;
        break;
      }
    }
    benchmark::DoNotOptimize(hit);
  }
}

const QString kRollover = QStringLiteral("showdialogstring front door");

void RolloverLine(benchmark::State& state) {
  TheShotView();
  for (auto _ : state) RunScriptLine(kRollover);
}

// The split and the command's own effect, and nothing else.
void SplitAndShowText(benchmark::State& state) {
  QLabel& line = *TheShotView().TextWindow;
  for (auto _ : state) {
    const QStringList words = kRollover.toLower().split(u' ');
    line.setText(words[1] + u' ' + words[2]);
  }
}

}  // namespace

BENCHMARK(ClickWithRefresh)->Name("click with refresh")->UseManualTime()->Iterations(1)->Repetitions(200)
    ->ComputeStatistics("p99", p99)->ReportAggregatesOnly(true);
BENCHMARK(ClickRowsBySqlite)->Name("click rows by sqlite")->UseManualTime()->Iterations(1)->Repetitions(200)
    ->ComputeStatistics("p99", p99)->ReportAggregatesOnly(true);
BENCHMARK(LoadBundledWorld)->Name("load bundled world")->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(ReadBundledWorldFile)->Name("read bundled world file")->MinTime(0.2);
BENCHMARK(LoadLargeWorld)->Name("load large world")->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(ReadLargeWorldFile)->Name("read large world file")->MinTime(0.2);
BENCHMARK(CheckHotSpots)->Name("check hotspots")->MinTime(0.2);
BENCHMARK(CheckRectangles)->Name("check rectangles")->MinTime(0.2);
BENCHMARK(RolloverLine)->Name("rollover line")->MinTime(0.3);
BENCHMARK(SplitAndShowText)->Name("split and show text")->MinTime(0.3);

}  // namespace fh::bench
