#include "MidiFile.h"

#include <algorithm>

namespace fh::fhmidi {

namespace {

void putBigEndian(QByteArray& bytes, quint32 value, int size) {
  for (int shift = (size - 1) * 8; shift >= 0; shift -= 8) bytes.append(char((value >> shift) & 0xFF));
}

void putVariableLength(QByteArray& bytes, quint32 value) {
  char groups[5];
  int count = 0;
  do {
    groups[count++] = char(value & 0x7F);
    value >>= 7;
  } while (value > 0);
  while (count > 1) bytes.append(char(groups[--count] | 0x80));
  bytes.append(groups[0]);
}

// One event of a track before its bytes are written; order breaks ties at the same tick so that a
// note ends before the same key is struck again.
struct TrackEvent {
  qint64 tick = 0;
  int order = 0;
  QByteArray data;  // status byte and data bytes, or FF type length data for a meta event
};

enum EventOrder { kMeta = 0, kNoteOff = 1, kSetup = 2, kNoteOn = 3, kEnd = 4 };

QByteArray metaEvent(int type, const QByteArray& data) {
  QByteArray bytes;
  bytes.append(char(0xFF));
  bytes.append(char(type));
  putVariableLength(bytes, quint32(data.size()));
  return bytes + data;
}

QByteArray channelEvent(int status, int channel, int first, int second) {
  QByteArray bytes;
  bytes.append(char(status | (channel - 1)));
  bytes.append(char(first));
  bytes.append(char(second));
  return bytes;
}

QByteArray trackChunk(std::vector<TrackEvent> events, qint64 endTick) {
  std::stable_sort(events.begin(), events.end(), [](const TrackEvent& a, const TrackEvent& b) {
    return a.tick != b.tick ? a.tick < b.tick : a.order < b.order;
  });
  events.push_back({std::max(endTick, events.empty() ? 0 : events.back().tick), kEnd, metaEvent(0x2F, {})});
  QByteArray body;
  qint64 now = 0;
  int runningStatus = 0;
  for (const TrackEvent& event : events) {
    putVariableLength(body, quint32(event.tick - now));
    now = event.tick;
    const int status = quint8(event.data[0]);
    if (status == 0xFF) {
      runningStatus = 0;
      body += event.data;
    } else if (status == runningStatus) {
      body += event.data.mid(1);
    } else {
      runningStatus = status;
      body += event.data;
    }
  }
  QByteArray chunk("MTrk");
  putBigEndian(chunk, quint32(body.size()), 4);
  return chunk + body;
}

QByteArray conductorTrack(const Song& song) {
  std::vector<TrackEvent> events;
  events.push_back({0, kMeta, metaEvent(0x03, song.title.toUtf8())});
  int unitPower = 0;
  while ((1 << unitPower) < song.beatUnit) ++unitPower;
  QByteArray signature;
  signature.append(char(song.beatsPerBar));
  signature.append(char(unitPower));
  signature.append(char(24));  // MIDI clocks per metronome click
  signature.append(char(8));   // thirty-seconds per quarter
  events.push_back({0, kMeta, metaEvent(0x58, signature)});
  for (const TempoChange& tempo : song.tempos) {
    QByteArray micros;
    putBigEndian(micros, quint32(60'000'000.0 / tempo.quartersPerMinute + 0.5), 3);
    events.push_back({tempo.tick, kMeta, metaEvent(0x51, micros)});
  }
  return trackChunk(std::move(events), song.endTick);
}

QByteArray instrumentTrack(const SongTrack& track, qint64 endTick) {
  std::vector<TrackEvent> events;
  const int channel = track.channel;
  events.push_back({0, kMeta, metaEvent(0x03, track.name.toUtf8())});
  const int controllers[][2] = {{7, track.volume}, {10, track.pan}, {91, track.reverb}, {93, track.chorus}};
  for (const auto& controller : controllers)
    events.push_back({0, kSetup, channelEvent(0xB0, channel, controller[0], controller[1])});
  QByteArray program;
  program.append(char(0xC0 | (channel - 1)));
  program.append(char(track.program));
  events.push_back({0, kSetup, program});
  // A note-on of velocity 0 ends a note, which keeps the running status over whole passages.
  for (const Note& note : track.notes) {
    events.push_back({note.start, kNoteOn, channelEvent(0x90, channel, note.pitch, note.velocity)});
    events.push_back({note.end, kNoteOff, channelEvent(0x90, channel, note.pitch, 0)});
  }
  return trackChunk(std::move(events), endTick);
}

// Reads a file front to back, throwing at the first byte that breaks the format.
class Reader {
 public:
  explicit Reader(const QByteArray& bytes) : m_bytes(bytes) {}
  bool atEnd() const { return m_at >= m_bytes.size(); }
  qsizetype at() const { return m_at; }
  int byte() {
    if (atEnd()) throw MidiFormatError{QStringLiteral("the file ends inside a chunk or event")};
    return quint8(m_bytes[m_at++]);
  }
  int peek() const { return atEnd() ? -1 : quint8(m_bytes[m_at]); }
  quint32 bigEndian(int size) {
    quint32 value = 0;
    for (int i = 0; i < size; ++i) value = (value << 8) | quint32(byte());
    return value;
  }
  quint32 variableLength() {
    quint32 value = 0;
    for (int i = 0; i < 4; ++i) {
      const int part = byte();
      value = (value << 7) | quint32(part & 0x7F);
      if ((part & 0x80) == 0) return value;
    }
    throw MidiFormatError{QStringLiteral("a variable-length number runs over four bytes")};
  }
  QByteArray take(qsizetype size) {
    if (size > m_bytes.size() - m_at) throw MidiFormatError{QStringLiteral("the file ends inside a chunk or event")};
    const QByteArray part = m_bytes.mid(m_at, size);
    m_at += size;
    return part;
  }

 private:
  const QByteArray& m_bytes;
  qsizetype m_at = 0;
};

MidiTrackSummary readTrack(const QByteArray& body, std::vector<TempoChange>& tempos) {
  MidiTrackSummary track;
  Reader reader(body);
  qint64 tick = 0;
  int runningStatus = 0;
  bool ended = false;
  while (!reader.atEnd()) {
    if (ended) throw MidiFormatError{QStringLiteral("a track goes on after its end-of-track event")};
    tick += reader.variableLength();
    int status = reader.peek();
    if (status & 0x80) {
      reader.byte();
    } else {
      if (runningStatus == 0) throw MidiFormatError{QStringLiteral("a data byte comes with no running status")};
      status = runningStatus;
    }
    if (status == 0xFF) {
      runningStatus = 0;
      const int type = reader.byte();
      const QByteArray data = reader.take(reader.variableLength());
      if (type == 0x03) track.name = QString::fromUtf8(data);
      if (type == 0x51 && data.size() == 3) {
        const quint32 micros = (quint32(quint8(data[0])) << 16) | (quint32(quint8(data[1])) << 8) | quint8(data[2]);
        tempos.push_back({tick, 60'000'000.0 / micros});
      }
      if (type == 0x2F) {
        ended = true;
        track.endTick = tick;
      }
    } else if (status == 0xF0 || status == 0xF7) {
      runningStatus = 0;
      reader.take(reader.variableLength());
    } else {
      runningStatus = status;
      const int kind = status & 0xF0;
      const int channel = (status & 0x0F) + 1;
      const int first = reader.byte();
      const int second = (kind == 0xC0 || kind == 0xD0) ? 0 : reader.byte();
      if (kind == 0x90 && second > 0) {
        ++track.noteOns;
        ++track.notesByChannel[channel];
      }
      if (kind == 0xC0) track.programByChannel[channel] = first;
    }
  }
  if (!ended) throw MidiFormatError{QStringLiteral("a track has no end-of-track event")};
  return track;
}

}  // namespace

QByteArray writeMidiFile(const Song& song) {
  QByteArray file("MThd");
  putBigEndian(file, 6, 4);
  putBigEndian(file, 1, 2);
  putBigEndian(file, quint32(song.tracks.size() + 1), 2);
  putBigEndian(file, kTicksPerQuarter, 2);
  file += conductorTrack(song);
  for (const SongTrack& track : song.tracks) file += instrumentTrack(track, song.endTick);
  return file;
}

MidiSummary readMidiFile(const QByteArray& bytes) {
  Reader reader(bytes);
  if (reader.take(4) != "MThd") throw MidiFormatError{QStringLiteral("the file does not begin with MThd")};
  if (reader.bigEndian(4) != 6) throw MidiFormatError{QStringLiteral("the header chunk is not six bytes long")};
  MidiSummary summary;
  summary.format = int(reader.bigEndian(2));
  const int trackCount = int(reader.bigEndian(2));
  summary.ticksPerQuarter = int(reader.bigEndian(2));
  if (summary.ticksPerQuarter <= 0 || summary.ticksPerQuarter >= 0x8000)
    throw MidiFormatError{QStringLiteral("the division is not in ticks per quarter note")};
  for (int i = 0; i < trackCount; ++i) {
    if (reader.take(4) != "MTrk") throw MidiFormatError{QStringLiteral("track %1 does not begin with MTrk").arg(i + 1)};
    summary.tracks.push_back(readTrack(reader.take(reader.bigEndian(4)), summary.tempos));
  }
  if (!reader.atEnd()) throw MidiFormatError{QStringLiteral("bytes follow the last track")};
  std::stable_sort(summary.tempos.begin(), summary.tempos.end(),
                   [](const TempoChange& a, const TempoChange& b) { return a.tick < b.tick; });
  qint64 end = 0;
  for (const MidiTrackSummary& track : summary.tracks) end = std::max(end, track.endTick);
  // secondsAt counts in this tool's own ticks; scale a foreign division to them.
  std::vector<TempoChange> scaled = summary.tempos;
  for (TempoChange& tempo : scaled) tempo.tick = tempo.tick * kTicksPerQuarter / summary.ticksPerQuarter;
  summary.seconds = secondsAt(scaled, end * kTicksPerQuarter / summary.ticksPerQuarter);
  return summary;
}

}  // namespace fh::fhmidi
