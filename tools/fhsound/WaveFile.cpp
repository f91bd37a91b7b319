#include "WaveFile.h"

#include <QtEndian>

namespace fh::fhsound {

namespace {

void put32(QByteArray& bytes, quint32 value) {
  char little[4];
  qToLittleEndian(value, little);
  bytes.append(little, 4);
}

void put16(QByteArray& bytes, quint16 value) {
  char little[2];
  qToLittleEndian(value, little);
  bytes.append(little, 2);
}

}  // namespace

QByteArray waveFile(const std::vector<qint16>& samples, int sampleRate) {
  constexpr quint16 kChannels = 1;
  constexpr quint16 kBytesPerSample = 2;
  const auto dataBytes = quint32(samples.size() * kBytesPerSample);
  QByteArray bytes;
  bytes.reserve(int(44 + dataBytes));
  bytes.append("RIFF");
  put32(bytes, 36 + dataBytes);
  bytes.append("WAVEfmt ");
  put32(bytes, 16);  // the size of a plain PCM format block
  put16(bytes, 1);   // PCM
  put16(bytes, kChannels);
  put32(bytes, quint32(sampleRate));
  put32(bytes, quint32(sampleRate) * kChannels * kBytesPerSample);
  put16(bytes, kChannels * kBytesPerSample);
  put16(bytes, 16);
  bytes.append("data");
  put32(bytes, dataBytes);
  for (qint16 sample : samples) put16(bytes, quint16(sample));
  return bytes;
}

}  // namespace fh::fhsound
