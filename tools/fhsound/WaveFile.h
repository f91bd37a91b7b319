#pragma once

#include <QByteArray>

#include <vector>

namespace fh::fhsound {

// The bytes of a RIFF WAVE file holding 16-bit PCM mono samples.
QByteArray waveFile(const std::vector<qint16>& samples, int sampleRate);

}  // namespace fh::fhsound
