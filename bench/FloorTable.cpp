#include "FloorTable.h"

#include <QString>
#include <QSysInfo>

#include <cstdio>

namespace fh::bench {

namespace {

// Google Benchmark gives times in the run's unit; its multiplier is that unit's count per second.
double nanosecondsPer(benchmark::TimeUnit unit) { return 1e9 / benchmark::GetTimeUnitMultiplier(unit); }

QString timeText(double nanoseconds) {
  if (nanoseconds >= 1e9) return QStringLiteral("%1 s").arg(nanoseconds / 1e9, 0, 'f', 2);
  if (nanoseconds >= 1e6) return QStringLiteral("%1 ms").arg(nanoseconds / 1e6, 0, 'f', 2);
  if (nanoseconds >= 1e3) return QStringLiteral("%1 µs").arg(nanoseconds / 1e3, 0, 'f', 2);
  return QStringLiteral("%1 ns").arg(nanoseconds, 0, 'f', 1);
}

QString valueText(TableLine::Kind kind, double value) {
  switch (kind) {
    case TableLine::Kind::Throughput: return QStringLiteral("%1 MB/s").arg(value / 1e6, 0, 'f', 1);
    case TableLine::Kind::Bytes: return QStringLiteral("%1 MB").arg(value / 1048576.0, 0, 'f', 1);
    default: return timeText(value);
  }
}

}  // namespace

bool FloorTable::ReportContext(const Context& context) {
  m_machine = QStringLiteral("%1, %2 CPUs at %3 MHz, %4")
                  .arg(QSysInfo::prettyProductName())
                  .arg(context.cpu_info.num_cpus)
                  .arg(context.cpu_info.cycles_per_second / 1e6, 0, 'f', 0)
                  .arg(QSysInfo::currentCpuArchitecture())
                  .toStdString();
  return true;
}

// A repeated benchmark gives its median and p99 aggregates; a plain one its time per iteration.
void FloorTable::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
      continue;
    }
    const std::string name = run.run_name.function_name;
    const auto bytes = run.counters.find("bytes_per_second");
    const double value = bytes != run.counters.end() ? static_cast<double>(bytes->second)
                                                     : run.GetAdjustedRealTime() * nanosecondsPer(run.time_unit);
    if (run.run_type == Run::RT_Aggregate) {
      if (run.aggregate_name == "median") m_values[name] = value;
      if (run.aggregate_name == "p99") m_values[name + "/p99"] = value;
    } else if (run.repetitions <= 1) {
      m_values[name] = value;
    }
  }
}

void FloorTable::print() const {
  std::printf("\n%-58s %14s %14s %8s\n", "Figure", "Engine", "Floor", "Ratio");
  for (const TableLine& line : m_lines) {
    const std::string figureKey = line.kind == TableLine::Kind::P99Time ? line.figure + "/p99" : line.figure;
    const std::string floorKey = line.kind == TableLine::Kind::P99Time ? line.floor + "/p99" : line.floor;
    const auto figure = m_values.find(figureKey);
    const auto floor = m_values.find(floorKey);
    if (figure == m_values.end() || floor == m_values.end() || floor->second <= 0 || figure->second <= 0) {
      std::printf("%-58s %14s\n", line.label.c_str(), "not measured");
      continue;
    }
    // Above 1 is always the engine being slower than its floor.
    const double ratio = line.kind == TableLine::Kind::Throughput ? floor->second / figure->second : figure->second / floor->second;
    std::printf("%-58s %14s %14s %8.1f\n", line.label.c_str(), qPrintable(valueText(line.kind, figure->second)),
                qPrintable(valueText(line.kind, floor->second)), ratio);
  }
  std::printf("\nMachine: %s\n", m_machine.c_str());
}

}  // namespace fh::bench
