#pragma once

#include <QtGlobal>

#include <vector>

namespace fh::fhsound {

// Every sound of the game plays at this loudness, so that none startles and none is lost.
// Loudness is the RMS level, in dB below full scale, of the stretches where the sound is sounding:
// see loudnessDb.
constexpr double kTargetLoudnessDb = -20;
// No sample comes nearer full scale than this.
constexpr double kCeilingDb = -1;

// The RMS level of the 20 ms blocks that are within 20 dB of the loudest block, in dB below full
// scale: the silence between two drips does not make the drips count as quiet. Bass below 100 Hz
// is left out, as the ear and a small speaker hardly hear it. -inf for silence.
double loudnessDb(const std::vector<float>& samples);
double peakDb(const std::vector<float>& samples);

struct MasteredSound {
  std::vector<qint16> samples;
  double loudnessDb = 0;
  double peakDb = 0;
  // The sound is too spiky to reach the target loudness under the ceiling, and is quieter.
  bool heldBack = false;
};

// Brings a rendered sound to the target loudness and to 16-bit samples.
MasteredSound master(std::vector<float> samples);

}  // namespace fh::fhsound
