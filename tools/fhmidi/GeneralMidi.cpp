#include "GeneralMidi.h"

#include <QStringList>

#include <array>
#include <utility>

namespace fh::fhmidi {

namespace {

constexpr std::array<const char*, 128> kProgramNames{
    "Acoustic Grand Piano", "Bright Acoustic Piano", "Electric Grand Piano", "Honky-tonk Piano",
    "Electric Piano 1", "Electric Piano 2", "Harpsichord", "Clavinet", "Celesta", "Glockenspiel",
    "Music Box", "Vibraphone", "Marimba", "Xylophone", "Tubular Bells", "Dulcimer", "Drawbar Organ",
    "Percussive Organ", "Rock Organ", "Church Organ", "Reed Organ", "Accordion", "Harmonica",
    "Tango Accordion", "Acoustic Guitar Nylon", "Acoustic Guitar Steel", "Electric Guitar Jazz",
    "Electric Guitar Clean", "Electric Guitar Muted", "Overdriven Guitar", "Distortion Guitar",
    "Guitar Harmonics", "Acoustic Bass", "Electric Bass Finger", "Electric Bass Pick", "Fretless Bass",
    "Slap Bass 1", "Slap Bass 2", "Synth Bass 1", "Synth Bass 2", "Violin", "Viola", "Cello",
    "Contrabass", "Tremolo Strings", "Pizzicato Strings", "Orchestral Harp", "Timpani",
    "String Ensemble 1", "String Ensemble 2", "Synth Strings 1", "Synth Strings 2", "Choir Aahs",
    "Voice Oohs", "Synth Voice", "Orchestra Hit", "Trumpet", "Trombone", "Tuba", "Muted Trumpet",
    "French Horn", "Brass Section", "Synth Brass 1", "Synth Brass 2", "Soprano Sax", "Alto Sax",
    "Tenor Sax", "Baritone Sax", "Oboe", "English Horn", "Bassoon", "Clarinet", "Piccolo", "Flute",
    "Recorder", "Pan Flute", "Blown Bottle", "Shakuhachi", "Whistle", "Ocarina", "Lead 1 Square",
    "Lead 2 Sawtooth", "Lead 3 Calliope", "Lead 4 Chiff", "Lead 5 Charang", "Lead 6 Voice",
    "Lead 7 Fifths", "Lead 8 Bass Lead", "Pad 1 New Age", "Pad 2 Warm", "Pad 3 Polysynth",
    "Pad 4 Choir", "Pad 5 Bowed", "Pad 6 Metallic", "Pad 7 Halo", "Pad 8 Sweep", "FX 1 Rain",
    "FX 2 Soundtrack", "FX 3 Crystal", "FX 4 Atmosphere", "FX 5 Brightness", "FX 6 Goblins",
    "FX 7 Echoes", "FX 8 Sci-fi", "Sitar", "Banjo", "Shamisen", "Koto", "Kalimba", "Bagpipe",
    "Fiddle", "Shanai", "Tinkle Bell", "Agogo", "Steel Drums", "Woodblock", "Taiko Drum",
    "Melodic Tom", "Synth Drum", "Reverse Cymbal", "Guitar Fret Noise", "Breath Noise", "Seashore",
    "Bird Tweet", "Telephone Ring", "Helicopter", "Applause", "Gunshot"};

constexpr std::array<std::pair<const char*, int>, 8> kKits{{{"standard", 0}, {"room", 8}, {"power", 16},
    {"electronic", 24}, {"tr808", 25}, {"jazz", 32}, {"brush", 40}, {"orchestra", 48}}};

constexpr std::array<std::pair<const char*, int>, 24> kDrums{{
    {"kick", 36}, {"kick2", 35}, {"rim", 37}, {"snare", 38}, {"clap", 39}, {"snare2", 40},
    {"tomlo", 45}, {"hat", 42}, {"tommid", 47}, {"pedal", 44}, {"tomhi", 50}, {"ohat", 46},
    {"crash", 49}, {"ride", 51}, {"china", 52}, {"bell", 53}, {"tamb", 54}, {"splash", 55},
    {"cowbell", 56}, {"crash2", 57}, {"shaker", 70}, {"block", 76}, {"triangle", 81}, {"floor", 41}}};

struct Quality {
  const char* name;
  std::array<int, 4> intervals;
  int count;
};

constexpr std::array<Quality, 20> kQualities{{
    {"", {0, 4, 7}, 3}, {"m", {0, 3, 7}, 3}, {"7", {0, 4, 7, 10}, 4}, {"maj7", {0, 4, 7, 11}, 4},
    {"m7", {0, 3, 7, 10}, 4}, {"m7b5", {0, 3, 6, 10}, 4}, {"dim", {0, 3, 6}, 3}, {"dim7", {0, 3, 6, 9}, 4},
    {"aug", {0, 4, 8}, 3}, {"sus4", {0, 5, 7}, 3}, {"sus2", {0, 2, 7}, 3}, {"6", {0, 4, 7, 9}, 4},
    {"m6", {0, 3, 7, 9}, 4}, {"9", {0, 4, 10, 14}, 4}, {"maj9", {0, 4, 11, 14}, 4}, {"m9", {0, 3, 10, 14}, 4},
    {"add9", {0, 4, 7, 14}, 4}, {"7sus4", {0, 5, 7, 10}, 4}, {"13", {0, 4, 10, 21}, 4}, {"5", {0, 7}, 2}}};

QString simplified(const QString& text) {
  QString plain;
  for (const QChar c : text)
    if (c.isLetterOrNumber()) plain += c.toLower();
  return plain;
}

}  // namespace

std::optional<int> programFromText(const QString& text) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (isNumber) return number >= 1 && number <= 128 ? std::optional<int>(number - 1) : std::nullopt;
  const QString wanted = simplified(text);
  for (std::size_t i = 0; i < kProgramNames.size(); ++i)
    if (simplified(QString::fromLatin1(kProgramNames[i])) == wanted) return int(i);
  return std::nullopt;
}

std::optional<int> kitFromText(const QString& text) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (isNumber) return number >= 0 && number <= 127 ? std::optional<int>(number) : std::nullopt;
  for (const auto& [name, program] : kKits)
    if (text == QLatin1String(name)) return program;
  return std::nullopt;
}

std::optional<int> drumKey(const QString& name) {
  for (const auto& [drum, key] : kDrums)
    if (name == QLatin1String(drum)) return key;
  return std::nullopt;
}

QString drumNames() {
  QStringList names;
  for (const auto& drum : kDrums) names << QString::fromLatin1(drum.first);
  return names.join(QStringLiteral(", "));
}

std::optional<std::vector<int>> chordIntervals(const QString& quality) {
  for (const Quality& known : kQualities)
    if (quality == QLatin1String(known.name))
      return std::vector<int>(known.intervals.begin(), known.intervals.begin() + known.count);
  return std::nullopt;
}

}  // namespace fh::fhmidi
