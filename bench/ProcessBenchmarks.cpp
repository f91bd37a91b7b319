#include "ChildRuns.h"

#include <benchmark/benchmark.h>

// Whole processes: the game's start against an empty Qt window's, each a fresh process.
namespace fh::bench {

namespace {

void launch(benchmark::State& state, const QString& mode) {
  for (auto _ : state) state.SetIterationTime(LaunchChild(mode).seconds);
}

void StartUp(benchmark::State& state) { launch(state, QStringLiteral("startup")); }
void EmptyWindow(benchmark::State& state) { launch(state, QStringLiteral("empty")); }

}  // namespace

BENCHMARK(StartUp)->Name("start-up")->UseManualTime()->Iterations(1)->Repetitions(7)->ReportAggregatesOnly(true);
BENCHMARK(EmptyWindow)->Name("empty window")->UseManualTime()->Iterations(1)->Repetitions(7)->ReportAggregatesOnly(true);

}  // namespace fh::bench
