#include "Synthesis.h"

#include "Filter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace fh::fhsound {

namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;
// An event that stops dead clicks; this much fade is too short to hear as a fade.
constexpr double kShortestRelease = 0.003;
// How long a loop's continuous layers overlap their start, and a one-shot's last fade.
constexpr double kLoopCrossfade = 0.25;
constexpr double kEndFade = 0.01;
// Harmonics above this share of the sample rate would fold back as harsh aliases.
constexpr double kHighestPartial = 0.45 * kSampleRate;

// Noise that is the same on every machine and every build: the standard library's
// distributions are not, so the numbers are made here (splitmix64).
class Random {
 public:
  explicit Random(quint64 seed) : m_state(seed) {}

  double unit() { return double(next() >> 11) * 0x1.0p-53; }
  double signedUnit() { return unit() * 2 - 1; }

 private:
  quint64 next() {
    quint64 z = (m_state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
  }

  quint64 m_state;
};

// Where a glide stands after `share` (0 to 1) of its way, moving evenly in pitch.
double along(const Glide& glide, double share) {
  return glide.from * std::pow(glide.to / glide.from, std::clamp(share, 0.0, 1.0));
}

double wave(const Wobble& wobble, double seconds) { return std::sin(kTwoPi * wobble.rate * seconds) * wobble.depth; }

// One tone or noise as it sounds for `seconds`, pitch and filters moved by `shift`.
struct Voice {
  Glide pitch;
  double shift = 1;
  double glideSeconds = 1;  // the time its glides take
  double seconds = 0;
};

double envelope(const Layer& layer, double t) {
  if (t < layer.attack) return t / layer.attack;
  if (layer.continuous()) return 1;
  t -= layer.attack + layer.hold.value_or(0);
  if (t < 0) return 1;
  const double share = t / std::max(layer.decay, kShortestRelease);
  if (share >= 1) return 0;
  // Dies away like a struck thing, yet reaches silence exactly at its end.
  return (1 - share) * std::exp(-4 * share);
}

double harmonicTone(double phase, double hz, int harmonics) {
  double sum = 0;
  for (int k = 1; k <= harmonics; ++k) {
    const double fade = std::clamp((kHighestPartial - k * hz) / (0.05 * kSampleRate), 0.0, 1.0);
    if (fade <= 0) break;
    sum += fade * std::sin(kTwoPi * k * phase) / k;
  }
  return sum;
}

void renderVoice(const Layer& layer, const Voice& voice, Random& random, std::vector<float>& part, long start) {
  const long length = std::min(long(std::lround(voice.seconds * kSampleRate)), long(part.size()) - start);
  const double gain = std::pow(10.0, layer.gainDb / 20);
  std::optional<Filter> lowpass;
  std::optional<Filter> highpass;
  if (layer.lowpass) lowpass.emplace(Filter::Pass::Low, layer.q);
  if (layer.highpass) highpass.emplace(Filter::Pass::High, layer.q);
  double phase = 0;
  for (long i = 0; i < length; ++i) {
    const double t = double(i) / kSampleRate;
    const double share = t / voice.glideSeconds;
    double x = 0;
    if (layer.kind == LayerKind::Tone) {
      const double hz = along(voice.pitch, share) * voice.shift * std::exp2(wave(layer.vibrato, t) / 1200);
      x = harmonicTone(phase, hz, layer.harmonics);
      phase = std::fmod(phase + hz / kSampleRate, 1.0);
    } else {
      x = random.signedUnit();
    }
    if (i % 4 == 0) {
      const double moved = voice.shift * std::exp2(wave(layer.sweep, t));
      if (lowpass) lowpass->tune(along(*layer.lowpass, share) * moved);
      if (highpass) highpass->tune(along(*layer.highpass, share) * moved);
    }
    if (lowpass) x = lowpass->run(x);
    if (highpass) x = highpass->run(x);
    const double tremolo = 1 - layer.tremolo.depth * (0.5 - 0.5 * std::cos(kTwoPi * layer.tremolo.rate * t));
    part[std::size_t(start + i)] += float(x * gain * tremolo * envelope(layer, t));
  }
}

// A rate that goes round a whole number of times in `seconds`, so that a loop meets itself.
double wholeCycles(double rate, double seconds) {
  if (rate <= 0) return rate;
  return std::max(1.0, std::round(rate * seconds)) / seconds;
}

Layer fittedToLoop(Layer layer, double seconds) {
  layer.vibrato.rate = wholeCycles(layer.vibrato.rate, seconds);
  layer.tremolo.rate = wholeCycles(layer.tremolo.rate, seconds);
  layer.sweep.rate = wholeCycles(layer.sweep.rate, seconds);
  if (layer.continuous() && !layer.freq.empty() && layer.freq.front().from == layer.freq.front().to)
    layer.freq.front().from = layer.freq.front().to = wholeCycles(layer.freq.front().from, seconds);
  if (layer.every > 0) layer.every = seconds / std::max(1.0, std::round(seconds / layer.every));
  return layer;
}

// A continuous layer. In a loop it runs on past the end by the cross-fade and fades in over the same
// stretch at the start, so that folding the overhang onto the start blends the two seamlessly.
std::vector<float> renderContinuous(const Layer& layer, const SoundSource& sound, Random& random) {
  const long samples = std::lround(sound.length * kSampleRate);
  const long overlap = sound.loop ? std::lround(std::min(kLoopCrossfade, sound.length / 4) * kSampleRate) : 0;
  std::vector<float> part(std::size_t(samples + overlap), 0.0f);
  Voice voice;
  if (!layer.freq.empty()) voice.pitch = layer.freq.front();
  voice.glideSeconds = sound.length;
  voice.seconds = double(part.size()) / kSampleRate;
  renderVoice(layer, voice, random, part, 0);
  // Tones line up with themselves after a loop and blend by amplitude; noise does not, and blends
  // by power so that the seam is not a dip.
  const bool byPower = layer.kind == LayerKind::Noise;
  for (long i = 0; i < overlap; ++i) {
    const double angle = std::numbers::pi / 2 * (double(i) + 0.5) / double(overlap);
    const double in = byPower ? std::sin(angle) : std::pow(std::sin(angle), 2);
    const double out = byPower ? std::cos(angle) : std::pow(std::cos(angle), 2);
    part[std::size_t(i)] *= float(in);
    part[std::size_t(samples + i)] *= float(out);
  }
  return part;
}

std::vector<double> eventTimes(const Layer& layer, const SoundSource& sound, Random& random) {
  std::vector<double> times;
  const int fitting = layer.every > 0 ? int(std::round(sound.length / layer.every)) : 1;
  const int count = layer.count > 0 ? layer.count : (sound.loop ? fitting : 1 << 30);
  for (int k = 0; k < count; ++k) {
    double t = layer.at + k * layer.every + layer.jitter * random.signedUnit();
    if (sound.loop) {
      t = std::fmod(t, sound.length);
      if (t < 0) t += sound.length;
    } else if (t >= sound.length) {
      break;
    }
    times.push_back(std::max(t, 0.0));
    if (layer.every <= 0) break;
  }
  return times;
}

// A train of events; in a loop the buffer is long enough for the last one to ring out, and the
// part past the end is folded back onto the start by the caller.
std::vector<float> renderEvents(const Layer& layer, const SoundSource& sound, Random& random) {
  const double eventSeconds = layer.attack + layer.hold.value_or(0) + std::max(layer.decay, kShortestRelease);
  const long samples = std::lround(sound.length * kSampleRate);
  const long ringing = sound.loop ? std::lround(eventSeconds * kSampleRate) + 1 : 0;
  std::vector<float> part(std::size_t(samples + ringing), 0.0f);
  const std::vector<double> times = eventTimes(layer, sound, random);
  for (std::size_t k = 0; k < times.size(); ++k) {
    Voice voice;
    if (!layer.freq.empty()) voice.pitch = layer.freq[k % layer.freq.size()];
    voice.shift = std::exp2(layer.vary * random.signedUnit() / 1200);
    voice.glideSeconds = eventSeconds;
    voice.seconds = eventSeconds;
    const long start = std::lround(times[k] * kSampleRate);
    if (start < long(part.size())) renderVoice(layer, voice, random, part, start);
  }
  return part;
}

}  // namespace

std::vector<float> renderSound(const SoundSource& sound) {
  const long samples = std::lround(sound.length * kSampleRate);
  std::vector<float> mix(std::size_t(samples), 0.0f);
  for (std::size_t index = 0; index < sound.layers.size(); ++index) {
    // Each layer draws its own numbers, so that tuning one layer leaves the others' noise alone.
    Random random((quint64(sound.seed) << 32) ^ (quint64(index + 1) * 0x9E3779B97F4A7C15ull));
    const Layer layer = sound.loop ? fittedToLoop(sound.layers[index], sound.length) : sound.layers[index];
    const std::vector<float> part =
        layer.continuous() ? renderContinuous(layer, sound, random) : renderEvents(layer, sound, random);
    for (std::size_t i = 0; i < part.size(); ++i) {
      if (sound.loop)
        mix[i % mix.size()] += part[i];
      else if (i < mix.size())
        mix[i] += part[i];
    }
  }
  if (!sound.loop) {
    const long fade = std::min(samples, std::lround(kEndFade * kSampleRate));
    for (long i = 0; i < fade; ++i) mix[std::size_t(samples - 1 - i)] *= float(i) / float(fade);
  }
  return mix;
}

}  // namespace fh::fhsound
