#include "SoundChecks.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace fh::test {

std::optional<ReadWave> readWave(const QByteArray& bytes) {
  const auto u32 = [&](qsizetype at) { return qFromLittleEndian<quint32>(bytes.constData() + at); };
  const auto u16 = [&](qsizetype at) { return qFromLittleEndian<quint16>(bytes.constData() + at); };
  if (bytes.size() < 12 || bytes.left(4) != "RIFF" || bytes.mid(8, 4) != "WAVE") return std::nullopt;
  if (u32(4) != quint32(bytes.size() - 8)) return std::nullopt;
  ReadWave wave;
  bool sawFormat = false;
  bool sawData = false;
  for (qsizetype at = 12; at + 8 <= bytes.size();) {
    const QByteArray id = bytes.mid(at, 4);
    const quint32 size = u32(at + 4);
    const qsizetype body = at + 8;
    if (body + qsizetype(size) > bytes.size()) return std::nullopt;
    if (id == "fmt " && size >= 16) {
      wave.format = u16(body);
      wave.channels = u16(body + 2);
      wave.sampleRate = u32(body + 4);
      wave.byteRate = u32(body + 8);
      wave.blockAlign = u16(body + 12);
      wave.bits = u16(body + 14);
      sawFormat = true;
    } else if (id == "data") {
      for (qsizetype i = body; i + 1 < body + qsizetype(size); i += 2) wave.samples.push_back(qint16(u16(i)));
      sawData = true;
    }
    at = body + size + (size % 2);
  }
  if (!sawFormat || !sawData) return std::nullopt;
  return wave;
}

double seamJumpInLocalSteps(const std::vector<float>& samples) {
  const std::size_t near = 220;
  double largest = 0;
  for (std::size_t i = 1; i < near; ++i) {
    largest = std::max(largest, double(std::abs(samples[i] - samples[i - 1])));
    largest = std::max(largest, double(std::abs(samples[samples.size() - i] - samples[samples.size() - i - 1])));
  }
  const double jump = std::abs(samples.front() - samples.back());
  return jump == 0 ? 0 : jump / largest;
}

}  // namespace fh::test
