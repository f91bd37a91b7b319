#include "ChildRuns.h"
#include "FloorTable.h"

#include "QuietUi.h"
#include "platform/base/Failure.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdio>

// fhbench: measures how fast the engine answers a student, each figure beside a floor measured in
// the same run on the same machine, and prints one table.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  QApplication app(argc, argv);
  // Nobody is there to answer: a world that asks something is counted and told at the end.
  fh::fhset::QuietUi quiet;
  if (const std::optional<int> childCode = fh::bench::RunChildMode(argc, argv)) return *childCode;

  using fh::bench::TableLine;
  using Kind = TableLine::Kind;
  fh::bench::FloorTable table({
      {"Click with refresh, median (floor: the same rows by SQLite)", "click with refresh", "click rows by sqlite", Kind::Time},
      {"Click with refresh, 99th percentile", "click with refresh", "click rows by sqlite", Kind::P99Time},
      {"LoadSet of the bundled world (floor: reading its file)", "load bundled world", "read bundled world file", Kind::Time},
      {"LoadSet of a world of 2,000 shots (floor: reading its file)", "load large world", "read large world file", Kind::Time},
      {"Set file parsing (floor: copying its bytes)", "parse set file", "copy set file bytes", Kind::Throughput},
      {"CheckHotSpots on 19 hotspots (floor: a plain loop)", "check hotspots", "check rectangles", Kind::Time},
      {"A rollover line (floor: split and show the text)", "rollover line", "split and show text", Kind::Time},
      {"Start-up to the opening screen (floor: an empty Qt window)", "start-up", "empty window", Kind::Time},
      {"Peak memory, walking every shot (floor: an empty Qt window)", "walk peak memory", "empty peak memory", Kind::Bytes},
  });
  benchmark::Initialize(&argc, argv);
  try {
    benchmark::RunSpecifiedBenchmarks(&table);
    table.add("walk peak memory", fh::bench::LaunchChild(QStringLiteral("walk")).peakBytes);
    table.add("empty peak memory", fh::bench::LaunchChild(QStringLiteral("empty")).peakBytes);
  } catch (const fh::RuntimeFailure& failure) {
    std::fprintf(stderr, "fhbench: %s\n", qPrintable(failure.message()));
    return 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "fhbench: %s\n", failure.what());
    return 1;
  }
  benchmark::Shutdown();
  table.print();
  if (quiet.messageBoxes() > 0) std::printf("The world showed %d message boxes while it was measured.\n", quiet.messageBoxes());
  return 0;
}
