#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace fh::fhsound {

// A value that may move from one figure to another over an event: "900" or "900>1600".
struct Glide {
  double from = 0;
  double to = 0;
};

// A slow wave that moves something up and down: so many times a second, by so much.
struct Wobble {
  double rate = 0;
  double depth = 0;
};

enum class LayerKind { Tone, Noise };

// One line of a sound source: a tone or a noise, sounded once or as a train of events.
struct Layer {
  LayerKind kind = LayerKind::Tone;
  int line = 0;  // where it stands in its source, for messages

  // Tones only: the pitch of each event in turn, and how the voice is built.
  std::vector<Glide> freq;
  int harmonics = 1;
  Wobble vibrato;  // depth in cents

  // Both: filters, loudness and the shape of each event.
  std::optional<Glide> lowpass;
  std::optional<Glide> highpass;
  double q = 0.707;
  Wobble sweep;  // moves the filters, depth in octaves
  double gainDb = 0;
  Wobble tremolo;  // depth 0 (steady) to 1 (down to silence)

  // An event rises over `attack`, stays for `hold` and dies away over `decay`. A layer with neither
  // hold nor decay sounds throughout: it is continuous.
  double attack = 0;
  std::optional<double> hold;
  double decay = 0;

  // The train: the first event at `at`, then one every `every` seconds, each moved by up to
  // `jitter` seconds and `vary` cents at random; `count` stops it early.
  double at = 0;
  double every = 0;
  int count = 0;  // 0: as many as fit
  double jitter = 0;
  double vary = 0;

  bool continuous() const { return !hold && decay <= 0; }
  double eventLength() const { return attack + hold.value_or(0) + decay; }
};

struct SoundSource {
  QString name;  // the file's base name, also the name of the wave file
  QString file;  // the path it was read from
  double length = 0;
  bool loop = false;
  quint32 seed = 1;
  std::vector<Layer> layers;
};

// A mistake in a source, with the place that holds it.
struct SourceProblem {
  QString file;
  int line = 0;  // 0 when it concerns the whole file
  QString text;

  QString where() const { return line > 0 ? QStringLiteral("%1:%2").arg(file).arg(line) : file; }
};

// Reads the text of one source; `file` names it in messages and gives the sound its name.
// Throws SourceProblem.
SoundSource parseSoundSource(const QString& text, const QString& file);

// Reads every "*.sound" file of a folder, in the order of their names. Throws SourceProblem.
std::vector<SoundSource> readSoundFolder(const QString& folder);

}  // namespace fh::fhsound
