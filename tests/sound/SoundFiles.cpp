#include "SoundFiles.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <vector>

namespace fh::test {

namespace {

void put(QByteArray& out, std::uint32_t value, int bytes, bool bigEndian = false) {
  for (int i = 0; i < bytes; ++i) out.append(static_cast<char>(value >> (8 * (bigEndian ? bytes - 1 - i : i))));
}

std::vector<std::int16_t> rawSamples(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray data = file.readAll();
  std::vector<std::int16_t> samples(static_cast<std::size_t>(data.size() / 2));
  std::memcpy(samples.data(), data.constData(), samples.size() * 2);
  return samples;
}

}  // namespace

QByteArray toneWave(int milliseconds) {
  constexpr int kRate = 22050;
  const auto samples = static_cast<std::uint32_t>(kRate * milliseconds / 1000);
  QByteArray wave("RIFF");
  put(wave, 36 + samples * 2, 4);
  wave.append("WAVEfmt ");
  for (const auto& [value, bytes] : {std::pair{16, 4}, {1, 2}, {1, 2}, {kRate, 4}, {kRate * 2, 4}, {2, 2}, {16, 2}})
    put(wave, static_cast<std::uint32_t>(value), bytes);
  wave.append("data");
  put(wave, samples * 2, 4);
  for (std::uint32_t i = 0; i < samples; ++i)
    put(wave, static_cast<std::uint32_t>(static_cast<std::int16_t>(12000 * std::sin(2 * std::numbers::pi * 440 * i / kRate))), 2);
  return wave;
}

QByteArray noteMidi(int milliseconds) {
  // 96 ticks to the quarter note at the default 120 beats a minute; the note's length fits a byte.
  const char ticks = static_cast<char>(std::min(127, milliseconds * 192 / 1000));
  QByteArray track("\x00\xC0\x00\x00\x90\x3C\x64", 7);
  track.append(ticks).append("\x80\x3C\x40\x00\xFF\x2F\x00", 7);
  QByteArray midi("MThd");
  put(midi, 6, 4, true);
  put(midi, 0, 2, true);
  put(midi, 1, 2, true);
  put(midi, 96, 2, true);
  midi.append("MTrk");
  put(midi, static_cast<std::uint32_t>(track.size()), 4, true);
  return midi + track;
}

bool waitUntil(const std::function<bool()>& condition, int timeoutMilliseconds) {
  QElapsedTimer clock;
  clock.start();
  for (;;) {
    QCoreApplication::processEvents();
    if (condition()) return true;
    if (clock.elapsed() > timeoutMilliseconds) return false;
    QThread::msleep(5);
  }
}

double rmsOfRawAudio(const QString& path) {
  const std::vector<std::int16_t> samples = rawSamples(path);
  double sum = 0;
  for (const std::int16_t sample : samples) sum += double(sample) * sample;
  return samples.empty() ? 0 : std::sqrt(sum / double(samples.size()));
}

namespace {

// A frame is silent when both sides are within a hair of zero; a tone passes zero for a frame.
bool silentFrame(const std::vector<std::int16_t>& samples, std::size_t left) {
  constexpr int kHair = 4;
  return std::abs(samples[left]) <= kHair && std::abs(samples[left + 1]) <= kHair;
}

}  // namespace

double longestSilenceInside(const QString& path) {
  const std::vector<std::int16_t> samples = rawSamples(path);
  std::size_t longest = 0;
  std::size_t run = 0;
  bool heardAny = false;
  for (std::size_t left = 0; left + 1 < samples.size(); left += 2) {
    if (silentFrame(samples, left)) {
      ++run;
      continue;
    }
    // Silence before the first sound doesn't count, nor does silence after the last.
    if (heardAny) longest = std::max(longest, run);
    heardAny = true;
    run = 0;
  }
  return double(longest) * 1000.0 / 44100.0;
}

double secondsOfRawAudio(const QString& path) { return double(QFileInfo(path).size()) / (44100.0 * 4); }

double secondsHeard(const QString& path) {
  const std::vector<std::int16_t> samples = rawSamples(path);
  std::size_t frames = 0;
  for (std::size_t left = 0; left + 1 < samples.size(); left += 2) frames += silentFrame(samples, left) ? 0 : 1;
  return double(frames) / 44100.0;
}

}  // namespace fh::test
