#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace fh::bench {

// One line of the table: a figure of the engine and the floor it is measured against, each the name
// of a benchmark. A time is the median when the benchmark repeats, and can be its 99th percentile;
// a throughput is in MB/s, and its ratio is turned round so that above 1 always means slower.
struct TableLine {
  std::string label;
  std::string figure;
  std::string floor;
  enum class Kind { Time, P99Time, Throughput, Bytes } kind = Kind::Time;
};

// Collects what the benchmarks measured and prints the table with floors and ratios.
class FloorTable : public benchmark::BenchmarkReporter {
 public:
  explicit FloorTable(std::vector<TableLine> lines) : m_lines(std::move(lines)) {}

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  // A figure measured outside Google Benchmark: a time in nanoseconds or a size in bytes.
  void add(const std::string& name, double value) { m_values[name] = value; }

  void print() const;

 private:
  std::vector<TableLine> m_lines;
  std::map<std::string, double> m_values;  // by benchmark name, with "/p99" for percentiles
  std::string m_machine;
};

}  // namespace fh::bench
