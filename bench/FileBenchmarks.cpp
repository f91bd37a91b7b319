#include "LargeWorld.h"

#include "platform/files/ByteFile.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

// Reading a set file: the parser against copying the same bytes.
namespace fh::bench {

namespace {

const QByteArray& largeWorldBytes() {
  static const QByteArray bytes = SetFileBytes(LargeWorld());
  return bytes;
}

void ParseSetFile(benchmark::State& state) {
  const QByteArray& bytes = largeWorldBytes();
  for (auto _ : state) {
    auto set = std::make_unique<cSet>();
    ByteFile file = ByteFile::fromBytes(bytes);
    set->Load(file);
    benchmark::DoNotOptimize(set->nNumShots);
    // Letting go of 38,000 hotspots is no part of reading them.
    state.PauseTiming();
    set.reset();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes.size());
}

void CopySetFileBytes(benchmark::State& state) {
  const QByteArray& bytes = largeWorldBytes();
  std::vector<char> copy(static_cast<std::size_t>(bytes.size()));
  for (auto _ : state) {
    std::memcpy(copy.data(), bytes.constData(), copy.size());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes.size());
}

}  // namespace

BENCHMARK(ParseSetFile)->Name("parse set file")->MinTime(0.5);
BENCHMARK(CopySetFileBytes)->Name("copy set file bytes")->MinTime(0.2);

}  // namespace fh::bench
