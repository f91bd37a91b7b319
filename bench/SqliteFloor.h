#pragma once

#include <benchmark/benchmark.h>

namespace fh::bench {

// The rows a click on the porch light reads and writes, through bare SQLite prepared statements,
// prepared once: the player's container row and its update, the two halves of the score, the
// shot's best backdrop and the looks of each sprite of the shot.
void ClickRowsBySqlite(benchmark::State& state);

}  // namespace fh::bench
