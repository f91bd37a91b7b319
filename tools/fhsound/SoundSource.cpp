#include "SoundSource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <functional>
#include <map>

namespace fh::fhsound {

namespace {

// Limits that keep a source within what 22050 samples a second can carry and an ear can bear.
constexpr double kLowestHz = 20;
constexpr double kHighestHz = 10000;
constexpr double kLongestSound = 30;

class LineReader {
 public:
  LineReader(const QString& file, int line) : m_file(file), m_line(line) {}

  [[noreturn]] void fail(const QString& text) const { throw SourceProblem{m_file, m_line, text}; }

  double number(const QString& key, const QString& text, double lowest, double highest) const {
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok) fail(QStringLiteral("%1 wants a number, not '%2'").arg(key, text));
    if (value < lowest || value > highest)
      fail(QStringLiteral("%1 %2 is out of range (%3 to %4)").arg(key, text).arg(lowest).arg(highest));
    return value;
  }

  Glide glide(const QString& key, const QString& text, double lowest, double highest) const {
    const QStringList ends = text.split(u'>');
    if (ends.size() > 2) fail(QStringLiteral("%1 '%2' has more than one '>'").arg(key, text));
    const double from = number(key, ends.first(), lowest, highest);
    return Glide{from, ends.size() == 2 ? number(key, ends.last(), lowest, highest) : from};
  }

  Wobble wobble(const QString& key, const QString& text, double highestDepth) const {
    const QStringList parts = text.split(u':');
    if (parts.size() != 2) fail(QStringLiteral("%1 wants RATE:DEPTH, not '%2'").arg(key, text));
    return Wobble{number(key + QStringLiteral(" rate"), parts[0], 0.01, 100),
                  number(key + QStringLiteral(" depth"), parts[1], 0, highestDepth)};
  }

 private:
  QString m_file;
  int m_line;
};

using Setter = std::function<void(Layer&, const LineReader&, const QString& key, const QString& value)>;

// Every setting a layer line may hold, and whether tones only take it.
struct SettingRule {
  bool toneOnly = false;
  Setter apply;
};

const std::map<QString, SettingRule>& settingRules() {
  static const std::map<QString, SettingRule> rules = {
      {QStringLiteral("freq"), {true, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         for (const QString& item : v.split(u',')) l.freq.push_back(r.glide(k, item, kLowestHz, kHighestHz));
       }}},
      {QStringLiteral("harmonics"), {true, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.harmonics = int(r.number(k, v, 1, 40));
       }}},
      {QStringLiteral("vibrato"), {true, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.vibrato = r.wobble(k, v, 1200);
       }}},
      {QStringLiteral("lowpass"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.lowpass = r.glide(k, v, kLowestHz, kHighestHz);
       }}},
      {QStringLiteral("highpass"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.highpass = r.glide(k, v, kLowestHz, kHighestHz);
       }}},
      {QStringLiteral("q"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.q = r.number(k, v, 0.3, 20);
       }}},
      {QStringLiteral("sweep"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.sweep = r.wobble(k, v, 4);
       }}},
      {QStringLiteral("gain"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.gainDb = r.number(k, v, -60, 24);
       }}},
      {QStringLiteral("tremolo"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.tremolo = r.wobble(k, v, 1);
       }}},
      {QStringLiteral("attack"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.attack = r.number(k, v, 0, kLongestSound);
       }}},
      {QStringLiteral("hold"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.hold = r.number(k, v, 0, kLongestSound);
       }}},
      {QStringLiteral("decay"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.decay = r.number(k, v, 0, kLongestSound);
       }}},
      {QStringLiteral("at"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.at = r.number(k, v, 0, kLongestSound);
       }}},
      {QStringLiteral("every"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.every = r.number(k, v, 0.005, kLongestSound);
       }}},
      {QStringLiteral("count"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.count = int(r.number(k, v, 1, 10000));
       }}},
      {QStringLiteral("jitter"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.jitter = r.number(k, v, 0, kLongestSound);
       }}},
      {QStringLiteral("vary"), {false, [](Layer& l, const LineReader& r, const QString& k, const QString& v) {
         l.vary = r.number(k, v, 0, 2400);
       }}},
  };
  return rules;
}

QString settingNames(LayerKind kind) {
  QStringList names;
  for (const auto& [name, rule] : settingRules())
    if (kind == LayerKind::Tone || !rule.toneOnly) names << name;
  return names.join(QStringLiteral(", "));
}

Layer parseLayer(LayerKind kind, const QStringList& words, const LineReader& reader, int line) {
  Layer layer;
  layer.kind = kind;
  layer.line = line;
  const QString kindName = kind == LayerKind::Tone ? QStringLiteral("tone") : QStringLiteral("noise");
  QSet<QString> seen;
  for (const QString& word : words.mid(1)) {
    const qsizetype equals = word.indexOf(u'=');
    if (equals <= 0 || equals == word.size() - 1)
      reader.fail(QStringLiteral("'%1' is no setting; write name=value").arg(word));
    const QString key = word.left(equals).toLower();
    const auto rule = settingRules().find(key);
    if (rule == settingRules().end() || (rule->second.toneOnly && kind != LayerKind::Tone))
      reader.fail(QStringLiteral("a %1 has no setting '%2'; it takes %3").arg(kindName, key, settingNames(kind)));
    if (seen.contains(key)) reader.fail(QStringLiteral("%1 is set twice").arg(key));
    seen.insert(key);
    rule->second.apply(layer, reader, key, word.mid(equals + 1));
  }
  if (kind == LayerKind::Tone && layer.freq.empty()) reader.fail(QStringLiteral("a tone needs freq=HZ"));
  if (layer.count > 0 && layer.every <= 0) reader.fail(QStringLiteral("count needs every= as well"));
  if (layer.continuous() && (layer.every > 0 || layer.at > 0))
    reader.fail(QStringLiteral("an event needs a hold= or a decay= to end; without them the layer sounds throughout"));
  return layer;
}

}  // namespace

SoundSource parseSoundSource(const QString& text, const QString& file) {
  SoundSource sound;
  sound.file = file;
  sound.name = QFileInfo(file).completeBaseName();
  static const QRegularExpression blanks(QStringLiteral("\\s+"));
  const QStringList lines = text.split(u'\n');
  for (int index = 0; index < lines.size(); ++index) {
    const int line = index + 1;
    const LineReader reader(file, line);
    QString content = lines[index];
    const qsizetype hash = content.indexOf(u'#');
    if (hash >= 0) content.truncate(hash);
    const QStringList words = content.trimmed().split(blanks, Qt::SkipEmptyParts);
    if (words.isEmpty()) continue;
    const QString keyword = words.first().toLower();
    if (keyword == QStringLiteral("tone")) {
      sound.layers.push_back(parseLayer(LayerKind::Tone, words, reader, line));
    } else if (keyword == QStringLiteral("noise")) {
      sound.layers.push_back(parseLayer(LayerKind::Noise, words, reader, line));
    } else if (keyword == QStringLiteral("length")) {
      if (words.size() != 2) reader.fail(QStringLiteral("write length SECONDS"));
      sound.length = reader.number(QStringLiteral("length"), words[1], 0.01, kLongestSound);
    } else if (keyword == QStringLiteral("loop")) {
      if (words.size() != 1) reader.fail(QStringLiteral("loop takes nothing after it"));
      sound.loop = true;
    } else if (keyword == QStringLiteral("seed")) {
      if (words.size() != 2) reader.fail(QStringLiteral("write seed NUMBER"));
      sound.seed = quint32(reader.number(QStringLiteral("seed"), words[1], 0, 4294967295.0));
    } else {
      reader.fail(QStringLiteral("unknown line '%1'; a line starts with length, loop, seed, tone or noise").arg(words.first()));
    }
  }
  if (sound.length <= 0) throw SourceProblem{file, 0, QStringLiteral("the sound has no length line")};
  if (sound.layers.empty()) throw SourceProblem{file, 0, QStringLiteral("the sound has no tone or noise line")};
  return sound;
}

std::vector<SoundSource> readSoundFolder(const QString& folder) {
  std::vector<SoundSource> sounds;
  const QDir dir(folder);
  const QStringList names = dir.entryList({QStringLiteral("*.sound")}, QDir::Files, QDir::Name);
  for (const QString& name : names) {
    const QString path = dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw SourceProblem{path, 0, QStringLiteral("cannot be read")};
    sounds.push_back(parseSoundSource(QString::fromUtf8(file.readAll()), path));
  }
  return sounds;
}

}  // namespace fh::fhsound
