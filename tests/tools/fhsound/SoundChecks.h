#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace fh::test {

// A wave file read back the long way, independently of the writer, field by field.
struct ReadWave {
  quint16 format = 0;
  quint16 channels = 0;
  quint32 sampleRate = 0;
  quint32 byteRate = 0;
  quint16 blockAlign = 0;
  quint16 bits = 0;
  std::vector<qint16> samples;
};

// Empty when the bytes are not a RIFF WAVE file whose chunk sizes add up.
std::optional<ReadWave> readWave(const QByteArray& bytes);

// How far the wave jumps where a loop comes round, against the largest step it takes from one
// sample to the next within 10 ms either side: a smooth seam is about 1 or less, a click many.
double seamJumpInLocalSteps(const std::vector<float>& samples);

}  // namespace fh::test
