#include "MusicSource.h"

#include "GeneralMidi.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <map>
#include <optional>

namespace fh::fhmidi {

namespace {

constexpr int kMaxMacroDepth = 16;

struct TrackDef {
  SongTrack track;
  bool drums = false;
  int velocity = 90;
  int gate = 90;       // percent of a note's length, up to a beat, that sounds
  int voicingFloor = 55;  // chord symbols are voiced in the octave from here (g3)
  int humanize = 0;    // velocity varies by up to this much either way
  int line = 0;
};

struct Token {
  QString text;
  int line = 0;
  int transpose = 0;
};

struct MusicLine {
  QString track;
  std::vector<Token> tokens;
  int line = 0;
};

struct Section {
  int bars = 0;
  std::optional<double> tempo;
  std::vector<MusicLine> lines;
  int line = 0;
};

struct FormEntry {
  QString section;
  int line = 0;
};

// What one track plays in one pass of a section, before it is looped to the section's length.
struct Passage {
  std::vector<Note> notes;
  qint64 length = 0;
};

class Parser {
 public:
  Parser(const QString& fileName) : m_file(fileName) {}

  Song parse(const QString& text);

 private:
  [[noreturn]] void fail(int line, const QString& text) const { throw SourceError{m_file, line, text}; }

  void readLine(const QString& content, int line);
  void readTrack(const QStringList& words, int line);
  void readSection(const QStringList& words, int line);
  int number(const QString& text, int low, int high, int line, const QString& what) const;
  std::vector<Token> tokenize(const QString& text, int line) const;
  void expand(const std::vector<Token>& tokens, int transpose, int depth, std::vector<Token>& out) const;
  Passage play(const TrackDef& def, const std::vector<MusicLine>& lines) const;
  std::vector<int> pitches(const TrackDef& def, const QString& text, int line) const;
  qint64 swung(qint64 tick) const;
  Song assemble();

  QString m_file;
  QString m_title;
  double m_tempo = 120;
  int m_beatsPerBar = 4;
  int m_beatUnit = 4;
  int m_swing = 50;
  std::vector<TrackDef> m_tracks;
  std::map<QString, std::pair<std::vector<Token>, int>> m_macros;
  std::map<QString, Section> m_sections;
  Section* m_currentSection = nullptr;
  std::vector<FormEntry> m_form;
  int m_formLine = 0;

  qint64 barTicks() const { return qint64(m_beatsPerBar) * kTicksPerQuarter * 4 / m_beatUnit; }
};

std::optional<int> notePitch(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("^([a-g])(#|b)?(-1|[0-9])$"));
  const QRegularExpressionMatch match = pattern.match(text);
  if (!match.hasMatch()) return std::nullopt;
  static const int semitones[] = {9, 11, 0, 2, 4, 5, 7};  // a b c d e f g
  int pitch = semitones[match.captured(1)[0].unicode() - 'a'] + (match.captured(3).toInt() + 1) * 12;
  if (match.captured(2) == QStringLiteral("#")) ++pitch;
  if (match.captured(2) == QStringLiteral("b")) --pitch;
  if (pitch < 0 || pitch > 127) return std::nullopt;
  return pitch;
}

// A duration token: 1 2 4 8 16 32, dotted with "." or a triplet with "t"; in ticks.
std::optional<qint64> durationTicks(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("^(1|2|4|8|16|32)(\\.|t)?$"));
  const QRegularExpressionMatch match = pattern.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const qint64 plain = qint64(kTicksPerQuarter) * 4 / match.captured(1).toInt();
  if (match.captured(2) == QStringLiteral(".")) return plain * 3 / 2;
  if (match.captured(2) == QStringLiteral("t")) return plain * 2 / 3;
  return plain;
}

Song Parser::parse(const QString& text) {
  const QStringList lines = text.split(u'\n');
  static const QRegularExpression comment(QStringLiteral("(^|\\s)#.*$"));
  for (int i = 0; i < lines.size(); ++i) {
    QString content = lines[i];
    content.remove(comment);
    content = content.trimmed();
    if (!content.isEmpty()) readLine(content, i + 1);
  }
  return assemble();
}

int Parser::number(const QString& text, int low, int high, int line, const QString& what) const {
  bool ok = false;
  const int value = text.toInt(&ok);
  if (!ok || value < low || value > high)
    fail(line, QStringLiteral("%1 must be a whole number from %2 to %3, not '%4'").arg(what).arg(low).arg(high).arg(text));
  return value;
}

void Parser::readLine(const QString& content, int line) {
  static const QRegularExpression musicLine(QStringLiteral("^([A-Za-z][\\w]*):(.*)$"));
  const QRegularExpressionMatch music = musicLine.match(content);
  if (music.hasMatch()) {
    if (!m_currentSection) fail(line, QStringLiteral("a line of notes must be inside a section"));
    m_currentSection->lines.push_back({music.captured(1), tokenize(music.captured(2), line), line});
    return;
  }
  const QStringList words = content.split(QRegularExpression(QStringLiteral("\\s+")));
  const QString& keyword = words[0];
  if (keyword != QStringLiteral("section")) m_currentSection = nullptr;
  if (keyword == QStringLiteral("title")) {
    m_title = content.mid(keyword.size()).trimmed();
  } else if (keyword == QStringLiteral("tempo")) {
    m_tempo = number(words.value(1), 30, 300, line, QStringLiteral("the tempo"));
  } else if (keyword == QStringLiteral("time")) {
    static const QRegularExpression signature(QStringLiteral("^(\\d+)/(2|4|8)$"));
    const QRegularExpressionMatch match = signature.match(words.value(1));
    if (!match.hasMatch() || words.size() != 2) fail(line, QStringLiteral("write the time signature as 4/4, 3/4, 6/8..."));
    m_beatsPerBar = number(match.captured(1), 1, 16, line, QStringLiteral("the beats of a bar"));
    m_beatUnit = match.captured(2).toInt();
  } else if (keyword == QStringLiteral("swing")) {
    m_swing = number(words.value(1), 50, 75, line, QStringLiteral("the swing"));
  } else if (keyword == QStringLiteral("track")) {
    readTrack(words, line);
  } else if (keyword == QStringLiteral("define")) {
    if (words.size() < 3) fail(line, QStringLiteral("write define NAME followed by its notes"));
    if (m_macros.count(words[1])) fail(line, QStringLiteral("'%1' is defined twice").arg(words[1]));
    m_macros[words[1]] = {tokenize(content.section(QRegularExpression(QStringLiteral("\\s+")), 2), line), line};
  } else if (keyword == QStringLiteral("section")) {
    readSection(words, line);
  } else if (keyword == QStringLiteral("form")) {
    if (m_formLine) fail(line, QStringLiteral("a piece has one form line"));
    m_formLine = line;
    for (const QString& name : words.mid(1)) m_form.push_back({name, line});
  } else {
    fail(line, QStringLiteral("'%1' is no keyword; a line of notes begins with its track's name and a colon").arg(keyword));
  }
}

void Parser::readTrack(const QStringList& words, int line) {
  if (words.size() < 2) fail(line, QStringLiteral("a track needs a name"));
  TrackDef def;
  def.line = line;
  def.track.name = words[1];
  for (const TrackDef& other : m_tracks)
    if (other.track.name == def.track.name) fail(line, QStringLiteral("there is already a track '%1'").arg(def.track.name));
  for (int i = 2; i < words.size(); ++i) {
    const QString& option = words[i];
    if (option == QStringLiteral("drums")) {
      def.drums = true;
      continue;
    }
    if (i + 1 >= words.size()) fail(line, QStringLiteral("the track option '%1' needs a value").arg(option));
    const QString value = words[++i];
    if (option == QStringLiteral("program")) {
      const std::optional<int> program = programFromText(value);
      if (!program) fail(line, QStringLiteral("'%1' is no General MIDI program (1 to 128, or a name such as Overdriven_Guitar)").arg(value));
      def.track.program = *program;
    } else if (option == QStringLiteral("kit")) {
      const std::optional<int> kit = kitFromText(value);
      if (!kit) fail(line, QStringLiteral("'%1' is no drum kit").arg(value));
      def.track.program = *kit;
    } else if (option == QStringLiteral("volume")) {
      def.track.volume = number(value, 0, 127, line, option);
    } else if (option == QStringLiteral("pan")) {
      def.track.pan = number(value, 0, 127, line, option);
    } else if (option == QStringLiteral("reverb")) {
      def.track.reverb = number(value, 0, 127, line, option);
    } else if (option == QStringLiteral("chorus")) {
      def.track.chorus = number(value, 0, 127, line, option);
    } else if (option == QStringLiteral("velocity")) {
      def.velocity = number(value, 1, 127, line, option);
    } else if (option == QStringLiteral("gate")) {
      def.gate = number(value, 10, 100, line, option);
    } else if (option == QStringLiteral("humanize")) {
      def.humanize = number(value, 0, 30, line, option);
    } else if (option == QStringLiteral("voicing")) {
      const std::optional<int> floor = notePitch(value);
      if (!floor) fail(line, QStringLiteral("voicing needs a note such as g3, not '%1'").arg(value));
      def.voicingFloor = *floor;
    } else {
      fail(line, QStringLiteral("'%1' is no track option").arg(option));
    }
  }
  m_tracks.push_back(def);
}

void Parser::readSection(const QStringList& words, int line) {
  if (words.size() != 3 && !(words.size() == 5 && words[3] == QStringLiteral("tempo")))
    fail(line, QStringLiteral("write section NAME BARS, or section NAME BARS tempo BPM"));
  if (m_sections.count(words[1])) fail(line, QStringLiteral("there is already a section '%1'").arg(words[1]));
  Section& section = m_sections[words[1]];
  section.line = line;
  section.bars = number(words[2], 1, 256, line, QStringLiteral("the bars of a section"));
  if (words.size() == 5) section.tempo = number(words[4], 30, 300, line, QStringLiteral("the tempo"));
  m_currentSection = &section;
}

// Splits a line into tokens, parting "[" from the token after it and "]" or "]x3" from the one
// before, so that groups can be written tight: [c4 d4]x2.
std::vector<Token> Parser::tokenize(const QString& text, int line) const {
  static const QRegularExpression groupEnd(QStringLiteral("^(.*?)(\\](x\\d+)?)$"));
  std::vector<Token> tokens;
  for (QString word : text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts)) {
    while (word.size() > 1 && word.startsWith(u'[')) {
      tokens.push_back({QStringLiteral("["), line, 0});
      word = word.mid(1);
    }
    const QRegularExpressionMatch end = groupEnd.match(word);
    if (end.hasMatch() && !end.captured(1).isEmpty()) {
      tokens.push_back({end.captured(1), line, 0});
      tokens.push_back({end.captured(2), line, 0});
    } else {
      tokens.push_back({word, line, 0});
    }
  }
  return tokens;
}

// Replaces macros, "[ ... ]xN" groups and "token*N" repeats by the plain tokens they stand for.
void Parser::expand(const std::vector<Token>& tokens, int transpose, int depth, std::vector<Token>& out) const {
  if (depth > kMaxMacroDepth) fail(tokens.empty() ? 0 : tokens[0].line, QStringLiteral("macros use each other in a circle"));
  static const QRegularExpression repeat(QStringLiteral("^(.+)\\*(\\d+)$"));
  static const QRegularExpression macro(QStringLiteral("^\\$(\\w+)([+-]\\d+)?$"));
  static const QRegularExpression groupEnd(QStringLiteral("^\\](x(\\d+))?$"));
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const Token& token = tokens[i];
    if (token.text == QStringLiteral("[")) {
      int open = 1;
      std::size_t close = i + 1;
      for (; close < tokens.size(); ++close) {
        if (tokens[close].text == QStringLiteral("[")) ++open;
        if (groupEnd.match(tokens[close].text).hasMatch() && --open == 0) break;
      }
      if (close >= tokens.size()) fail(token.line, QStringLiteral("a '[' has no ']' to close it"));
      const QRegularExpressionMatch end = groupEnd.match(tokens[close].text);
      const int times = end.captured(2).isEmpty() ? 1 : number(end.captured(2), 1, 64, token.line, QStringLiteral("a repeat"));
      const std::vector<Token> inner(tokens.begin() + qsizetype(i) + 1, tokens.begin() + qsizetype(close));
      for (int n = 0; n < times; ++n) expand(inner, transpose, depth, out);
      i = close;
      continue;
    }
    if (groupEnd.match(token.text).hasMatch()) fail(token.line, QStringLiteral("a ']' closes no group"));
    const QRegularExpressionMatch repeated = repeat.match(token.text);
    if (repeated.hasMatch()) {
      const int times = number(repeated.captured(2), 1, 64, token.line, QStringLiteral("a repeat"));
      for (int n = 0; n < times; ++n) expand({{repeated.captured(1), token.line, 0}}, transpose, depth, out);
      continue;
    }
    const QRegularExpressionMatch called = macro.match(token.text);
    if (called.hasMatch()) {
      const auto found = m_macros.find(called.captured(1));
      if (found == m_macros.end()) fail(token.line, QStringLiteral("no macro is defined as '%1'").arg(called.captured(1)));
      const int shift = called.captured(2).isEmpty() ? 0 : called.captured(2).toInt();
      expand(found->second.first, transpose + shift, depth + 1, out);
      continue;
    }
    out.push_back({token.text, token.line, transpose});
  }
}

std::vector<int> Parser::pitches(const TrackDef& def, const QString& text, int line) const {
  std::vector<int> found;
  static const QRegularExpression chordSymbol(QStringLiteral("^([A-G])(#|b)?([a-z0-9#]*?)(@([a-g](#|b)?-?\\d))?$"));
  for (const QString& part : text.split(u'+')) {
    if (def.drums) {
      const std::optional<int> key = drumKey(part);
      if (!key) fail(line, QStringLiteral("'%1' is no drum; drums are %2").arg(part, drumNames()));
      found.push_back(*key);
      continue;
    }
    if (const std::optional<int> pitch = notePitch(part)) {
      found.push_back(*pitch);
      continue;
    }
    const QRegularExpressionMatch chord = chordSymbol.match(part);
    if (!chord.hasMatch()) fail(line, QStringLiteral("'%1' is no note, chord, duration or rest").arg(part));
    const std::optional<std::vector<int>> intervals = chordIntervals(chord.captured(3));
    if (!intervals) fail(line, QStringLiteral("'%1' is no chord quality I know").arg(chord.captured(3)));
    const int floor = chord.captured(5).isEmpty() ? def.voicingFloor : notePitch(chord.captured(5)).value_or(-1);
    if (floor < 0) fail(line, QStringLiteral("'%1' is no voicing note").arg(chord.captured(5)));
    int root = *notePitch(chord.captured(1).toLower() + chord.captured(2) + QStringLiteral("4"));
    for (const int interval : *intervals) {
      const int tone = floor + ((root + interval - floor) % 12 + 12) % 12;
      if (std::find(found.begin(), found.end(), tone) == found.end()) found.push_back(tone);
    }
  }
  return found;
}

Passage Parser::play(const TrackDef& def, const std::vector<MusicLine>& lines) const {
  std::vector<Token> tokens;
  for (const MusicLine& line : lines) expand(line.tokens, 0, 0, tokens);
  Passage passage;
  qint64 position = 0;
  qint64 duration = kTicksPerQuarter;
  int velocity = def.velocity;
  std::vector<std::size_t> sounding;  // the notes that a "-" holds on
  static const QRegularExpression velocityToken(QStringLiteral("^v(\\d+)$"));
  for (const Token& token : tokens) {
    const QString& text = token.text;
    if (text == QStringLiteral("|")) {
      if (position % barTicks() != 0)
        fail(token.line, QStringLiteral("the bar line of track %1 falls %2 beats into bar %3")
                             .arg(def.track.name)
                             .arg(double(position % barTicks()) / kTicksPerQuarter)
                             .arg(position / barTicks() + 1));
      continue;
    }
    if (const std::optional<qint64> ticks = durationTicks(text)) {
      duration = *ticks;
      continue;
    }
    if (const QRegularExpressionMatch match = velocityToken.match(text); match.hasMatch()) {
      velocity = number(match.captured(1), 1, 127, token.line, QStringLiteral("a velocity"));
      continue;
    }
    if (text == QStringLiteral("r")) {
      sounding.clear();
    } else if (text == QStringLiteral("-")) {
      for (const std::size_t index : sounding) passage.notes[index].end += duration;
    } else {
      QString body = text;
      int accent = 0;
      while (body.endsWith(u'!') || body.endsWith(u'?')) {
        accent += body.endsWith(u'!') ? 18 : -30;
        body.chop(1);
      }
      sounding.clear();
      for (int pitch : pitches(def, body, token.line)) {
        if (!def.drums) pitch += token.transpose;
        if (pitch < 0 || pitch > 127) fail(token.line, QStringLiteral("'%1' moved by %2 leaves the MIDI range").arg(text).arg(token.transpose));
        sounding.push_back(passage.notes.size());
        passage.notes.push_back({position, position + duration, pitch, std::clamp(velocity + accent, 1, 127)});
      }
    }
    position += duration;
  }
  passage.length = position;
  return passage;
}

// Swing delays the second eighth of each beat to m_swing percent of the beat; the ticks in
// between are stretched or squeezed so that notes keep their order.
qint64 Parser::swung(qint64 tick) const {
  if (m_swing == 50) return tick;
  const qint64 beat = tick / kTicksPerQuarter * kTicksPerQuarter;
  const qint64 inBeat = tick - beat;
  const qint64 half = kTicksPerQuarter / 2;
  const qint64 bend = qint64(kTicksPerQuarter) * m_swing / 100;
  if (inBeat <= half) return beat + inBeat * bend / half;
  return beat + bend + (inBeat - half) * (kTicksPerQuarter - bend) / half;
}

Song Parser::assemble() {
  if (m_form.empty()) fail(0, QStringLiteral("the piece has no form line naming its sections in order"));
  if (m_tracks.empty()) fail(0, QStringLiteral("the piece has no track"));
  Song song;
  song.title = m_title;
  song.beatsPerBar = m_beatsPerBar;
  song.beatUnit = m_beatUnit;
  song.tempos.push_back({0, m_tempo});

  int nextChannel = 1;
  for (TrackDef& def : m_tracks) {
    if (def.drums) {
      def.track.channel = kDrumChannel;
      continue;
    }
    if (nextChannel == kDrumChannel) ++nextChannel;
    if (nextChannel > 16) fail(def.line, QStringLiteral("there are more instruments than MIDI channels"));
    def.track.channel = nextChannel++;
  }
  for (const auto& [name, section] : m_sections)
    for (const MusicLine& line : section.lines)
      if (std::none_of(m_tracks.begin(), m_tracks.end(), [&](const TrackDef& def) { return def.track.name == line.track; }))
        fail(line.line, QStringLiteral("there is no track '%1'").arg(line.track));

  qint64 start = 0;
  for (const FormEntry& entry : m_form) {
    const auto found = m_sections.find(entry.section);
    if (found == m_sections.end()) fail(entry.line, QStringLiteral("the form names a section '%1' that is not written").arg(entry.section));
    const Section& section = found->second;
    const double tempo = section.tempo.value_or(m_tempo);
    if (tempo != song.tempos.back().quartersPerMinute) song.tempos.push_back({start, tempo});
    const qint64 length = section.bars * barTicks();
    for (TrackDef& def : m_tracks) {
      std::vector<MusicLine> lines;
      for (const MusicLine& line : section.lines)
        if (line.track == def.track.name) lines.push_back(line);
      if (lines.empty()) continue;
      const Passage passage = play(def, lines);
      if (passage.length == 0) continue;
      if (passage.length > length || length % passage.length != 0)
        fail(lines.front().line, QStringLiteral("track %1 plays %2 beats, which do not fill section %3 of %4 bars an exact number of times")
                                     .arg(def.track.name)
                                     .arg(double(passage.length) / kTicksPerQuarter)
                                     .arg(entry.section)
                                     .arg(section.bars));
      for (qint64 offset = 0; offset < length; offset += passage.length)
        for (Note note : passage.notes) {
          note.start += start + offset;
          note.end += start + offset;
          def.track.notes.push_back(note);
        }
    }
    start += length;
  }
  song.endTick = start;

  for (std::size_t t = 0; t < m_tracks.size(); ++t) {
    TrackDef& def = m_tracks[t];
    quint32 seed = 12345u + quint32(t) * 7919u;
    for (Note& note : def.track.notes) {
      const qint64 nominal = note.end - note.start;
      const qint64 cut = std::min<qint64>(nominal, kTicksPerQuarter) * (100 - def.gate) / 100;
      note.start = swung(note.start);
      note.end = std::max(note.start + 1, swung(note.end - cut));
      if (def.humanize > 0) {
        seed = seed * 1103515245u + 12345u;
        const int spread = int((seed >> 16) % quint32(2 * def.humanize + 1)) - def.humanize;
        note.velocity = std::clamp(note.velocity + spread, 1, 127);
      }
    }
    // A key struck again while it still sounds ends the earlier note there, so that its late
    // note-off does not silence the new one.
    std::stable_sort(def.track.notes.begin(), def.track.notes.end(),
                     [](const Note& a, const Note& b) { return a.start < b.start; });
    std::map<int, std::size_t> lastByPitch;
    for (std::size_t i = 0; i < def.track.notes.size(); ++i) {
      Note& note = def.track.notes[i];
      const auto previous = lastByPitch.find(note.pitch);
      if (previous != lastByPitch.end()) {
        Note& earlier = def.track.notes[previous->second];
        if (earlier.end > note.start) earlier.end = note.start;
      }
      lastByPitch[note.pitch] = i;
    }
    // Of two notes struck together on one key, only the later written one is kept.
    std::erase_if(def.track.notes, [](const Note& note) { return note.end <= note.start; });
    song.tracks.push_back(def.track);
  }
  return song;
}

}  // namespace

Song parseMusicSource(const QString& text, const QString& fileName) {
  Parser parser(fileName);
  return parser.parse(text);
}

}  // namespace fh::fhmidi
