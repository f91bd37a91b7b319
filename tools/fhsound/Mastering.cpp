#include "Mastering.h"

#include "Filter.h"
#include "Synthesis.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace fh::fhsound {

namespace {

constexpr std::size_t kBlock = kSampleRate / 50;  // 20 ms
constexpr double kGateDb = -20;
constexpr double kHeardFromHz = 100;

double decibels(double amplitude) {
  return amplitude > 0 ? 20 * std::log10(amplitude) : -std::numeric_limits<double>::infinity();
}

}  // namespace

double loudnessDb(const std::vector<float>& samples) {
  Filter heard(Filter::Pass::High, 0.707);
  heard.tune(kHeardFromHz);
  std::vector<double> blocks;  // mean squares
  for (std::size_t start = 0; start < samples.size(); start += kBlock) {
    const std::size_t end = std::min(samples.size(), start + kBlock);
    double sum = 0;
    for (std::size_t i = start; i < end; ++i) sum += std::pow(heard.run(samples[i]), 2);
    blocks.push_back(sum / double(end - start));
  }
  if (blocks.empty()) return decibels(0);
  const double loudest = *std::max_element(blocks.begin(), blocks.end());
  const double gate = loudest * std::pow(10.0, kGateDb / 10);
  double sum = 0;
  int counted = 0;
  for (double block : blocks) {
    if (block < gate || block <= 0) continue;
    sum += block;
    ++counted;
  }
  return counted > 0 ? decibels(std::sqrt(sum / counted)) : decibels(0);
}

double peakDb(const std::vector<float>& samples) {
  float peak = 0;
  for (float sample : samples) peak = std::max(peak, std::abs(sample));
  return decibels(peak);
}

MasteredSound master(std::vector<float> samples) {
  MasteredSound result;
  const double loudness = loudnessDb(samples);
  const double peak = peakDb(samples);
  if (std::isfinite(loudness)) {
    double gainDb = kTargetLoudnessDb - loudness;
    if (peak + gainDb > kCeilingDb) {
      gainDb = kCeilingDb - peak;
      result.heldBack = true;
    }
    const float gain = float(std::pow(10.0, gainDb / 20));
    for (float& sample : samples) sample *= gain;
  }
  result.samples.reserve(samples.size());
  for (float sample : samples)
    result.samples.push_back(qint16(std::clamp(std::lround(double(sample) * 32767), -32767L, 32767L)));
  result.loudnessDb = loudnessDb(samples);
  result.peakDb = peakDb(samples);
  return result;
}

}  // namespace fh::fhsound
