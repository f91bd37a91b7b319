#pragma once

#include "SoundSource.h"

#include <vector>

namespace fh::fhsound {

// Plenty for the game's effects, and half the bytes of CD rate.
constexpr int kSampleRate = 22050;

// Renders a sound as floating samples at the levels its layers ask for, before its loudness is
// set. A loop's last sample leads smoothly into its first: events that run past the end come back
// in at the start, and continuous layers cross-fade their overhang into their beginning.
// The same source always gives the same samples: its noise is seeded.
std::vector<float> renderSound(const SoundSource& sound);

}  // namespace fh::fhsound
