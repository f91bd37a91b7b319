#include "Mastering.h"
#include "SoundSource.h"
#include "Synthesis.h"

#include "SoundChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace fh::test {
namespace {

using fhsound::kSampleRate;

fhsound::SoundSource source(const char* text) { return fhsound::parseSoundSource(QString::fromUtf8(text), QStringLiteral("Test.sound")); }

double rms(const std::vector<float>& samples, std::size_t from, std::size_t to) {
  double sum = 0;
  for (std::size_t i = from; i < to; ++i) sum += double(samples[i]) * samples[i];
  return std::sqrt(sum / double(to - from));
}

TEST(SoundSources, AMistakeIsNamedWithItsLine) {
  struct Case { const char* text; int line; const char* says; };
  const Case cases[] = {
      {"length 1\ntone freq=440 decy=0.1\n", 2, "decy"},
      {"length 1\n\n# a comment\ntone freq=abc\n", 4, "abc"},
      {"length 1\ntone decay=0.1\n", 2, "freq=HZ"},
      {"length 1\ntone freq=440 tremolo=4\n", 2, "RATE:DEPTH"},
      {"length 1\nbuzz freq=440\n", 2, "buzz"},
      {"tone freq=440\n", 0, "length"},
      {"length 1\nloop\n", 0, "no tone or noise"},
  };
  for (const Case& c : cases) {
    try {
      source(c.text);
      ADD_FAILURE() << "accepted: " << c.text;
    } catch (const fhsound::SourceProblem& problem) {
      EXPECT_EQ(problem.line, c.line) << c.text;
      EXPECT_TRUE(problem.text.contains(QString::fromUtf8(c.says))) << problem.text.toStdString();
      EXPECT_EQ(problem.where(), c.line > 0 ? QStringLiteral("Test.sound:%1").arg(c.line) : QStringLiteral("Test.sound"));
    }
  }
}

TEST(SoundSources, ASourceReadsIntoItsLayers) {
  const auto sound = source("length 2.5  # seconds\nloop\nseed 9\n"
                            "tone freq=440,600>900 harmonics=3 decay=0.2 every=0.5 count=4\n"
                            "noise lowpass=800 highpass=100 gain=-6\n");
  EXPECT_DOUBLE_EQ(sound.length, 2.5);
  EXPECT_TRUE(sound.loop);
  EXPECT_EQ(sound.seed, 9u);
  ASSERT_EQ(sound.layers.size(), 2u);
  const auto& tone = sound.layers[0];
  ASSERT_EQ(tone.freq.size(), 2u);
  EXPECT_DOUBLE_EQ(tone.freq[1].from, 600);
  EXPECT_DOUBLE_EQ(tone.freq[1].to, 900);
  EXPECT_EQ(tone.count, 4);
  EXPECT_FALSE(tone.continuous());
  EXPECT_EQ(sound.layers[1].line, 5);
}

TEST(Synthesis, TheSameSourceGivesTheSameSamplesAndTheSeedChangesThem) {
  const char* text = "length 0.5\nnoise lowpass=2000\ntone freq=300 decay=0.05 every=0.1 jitter=0.02 vary=300\n";
  const auto once = fhsound::renderSound(source(text));
  EXPECT_EQ(once, fhsound::renderSound(source(text)));
  EXPECT_NE(once, fhsound::renderSound(source((std::string(text) + "seed 2\n").c_str())));
  EXPECT_EQ(once.size(), std::size_t(kSampleRate / 2));
}

TEST(Synthesis, ALoopMeetsItselfWhateverItsLayers) {
  // A pitch that does not fit the length, noise that ends anywhere, wobbles at odd rates, and
  // events that ring on past the end.
  const char* sources[] = {
      "length 1\nloop\ntone freq=441.37 vibrato=3.3:40\n",
      "length 1.5\nloop\nnoise lowpass=3000 sweep=0.7:1 tremolo=1.3:0.5\n",
      "length 1\nloop\ntone freq=500 decay=0.4 every=0.3 at=0.2\n",
      "length 2\nloop\nnoise lowpass=900\ntone freq=220 harmonics=5\ntone freq=1000 decay=0.6 at=1.8\n",
  };
  for (const char* text : sources) EXPECT_LT(seamJumpInLocalSteps(fhsound::renderSound(source(text))), 1.5) << text;
}

TEST(Synthesis, AnEventPastALoopsEndRingsOnAtItsStart) {
  const auto samples = fhsound::renderSound(source("length 1\nloop\ntone freq=500 decay=0.3 at=0.9\n"));
  EXPECT_GT(rms(samples, 0, kSampleRate / 10), 0.05);
  const auto once = fhsound::renderSound(source("length 1\ntone freq=500 decay=0.3 at=0.9\n"));
  EXPECT_EQ(rms(once, 0, kSampleRate / 10), 0);
}

TEST(Synthesis, ALoopedNoiseKeepsItsLevelThroughTheSeam) {
  const auto samples = fhsound::renderSound(source("length 2\nloop\nnoise highpass=200 lowpass=4000\n"));
  const double seam = rms(samples, 0, kSampleRate / 4);
  const double middle = rms(samples, kSampleRate / 2, kSampleRate * 3 / 2);
  EXPECT_LT(std::abs(20 * std::log10(seam / middle)), 0.8);
}

// The bundled sounds show a sound brought to the target loudness; a spiky one can't be, and is
// held under the ceiling instead.
TEST(Mastering, ASpikySoundIsHeldUnderTheCeiling) {
  const auto mastered = fhsound::master(fhsound::renderSound(source("length 1\nnoise decay=0.001 at=0.5\n")));
  EXPECT_TRUE(mastered.heldBack);
  const auto peak = std::ranges::max(mastered.samples, {}, [](qint16 s) { return std::abs(int(s)); });
  EXPECT_LE(20 * std::log10(std::abs(peak) / 32767.0), fhsound::kCeilingDb + 0.01);
}

}  // namespace
}  // namespace fh::test
