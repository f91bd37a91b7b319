#include "MidiFile.h"
#include "MusicSource.h"

#include <gtest/gtest.h>

namespace fh::test {
namespace {

using fhmidi::parseMusicSource;
using fhmidi::readMidiFile;
using fhmidi::writeMidiFile;

const QString kTwoTracks = QStringLiteral(
    "tempo 120\n"
    "track lead program Flute\n"
    "track drums drums\n"
    "section A 1\n"
    "lead: 4 c5 d5 e5 f5\n"
    "drums: 8 kick+hat hat snare+hat hat kick+hat hat snare+hat hat\n"
    "form A\n");

quint32 bigEndian(const QByteArray& bytes, qsizetype at, int size) {
  quint32 value = 0;
  for (int i = 0; i < size; ++i) value = (value << 8) | quint8(bytes[at + i]);
  return value;
}

// The chunks after the header, as (start of body, length).
std::vector<std::pair<qsizetype, quint32>> trackChunks(const QByteArray& file) {
  std::vector<std::pair<qsizetype, quint32>> chunks;
  for (qsizetype at = 14; at < file.size();) {
    EXPECT_EQ(file.mid(at, 4), QByteArray("MTrk"));
    const quint32 length = bigEndian(file, at + 4, 4);
    chunks.emplace_back(at + 8, length);
    at += 8 + length;
  }
  return chunks;
}

TEST(MidiFile, HeaderNamesTypeOneATrackPerInstrumentAndTheDivision) {
  const QByteArray file = writeMidiFile(parseMusicSource(kTwoTracks, QStringLiteral("t.txt")));
  EXPECT_EQ(file.left(4), QByteArray("MThd"));
  // A header of 6 bytes: type 1, three tracks (the tempo track and two instruments), 480 ticks a beat.
  for (const auto& [at, size, value] : {std::tuple{4, 4, 6u}, {8, 2, 1u}, {10, 2, 3u}, {12, 2, 480u}})
    EXPECT_EQ(bigEndian(file, at, size), value) << "at " << at;
  const auto chunks = trackChunks(file);
  ASSERT_EQ(chunks.size(), 3u);
  qsizetype end = 14;
  for (const auto& [start, length] : chunks) {
    end = start + length;
    // Every chunk's declared length ends exactly on its end-of-track event.
    EXPECT_EQ(file.mid(end - 3, 3), QByteArray("\xFF\x2F\x00", 3));
  }
  EXPECT_EQ(end, file.size());
}

TEST(MidiFile, NotesUseRunningStatusAndEndWithVelocityZero) {
  const QByteArray file = writeMidiFile(parseMusicSource(kTwoTracks, QStringLiteral("t.txt")));
  const auto [start, length] = trackChunks(file)[1];
  const QByteArray lead = file.mid(start, length);
  // Four notes on channel 1, on and off: one status byte 0x90 and seven events without it.
  EXPECT_EQ(lead.count(char(0x90)), 1);
  EXPECT_EQ(lead.count(char(0x80)), 0);
  const fhmidi::MidiSummary summary = readMidiFile(file);
  EXPECT_EQ(summary.tracks[1].noteOns, 4);
  EXPECT_EQ(summary.tracks[1].programByChannel.at(1), 73);  // Flute, 74 counted from 1
  EXPECT_EQ(summary.tracks[2].notesByChannel.at(10), 12);
}

TEST(MidiFile, ReaderRefusesBrokenFiles) {
  const QByteArray file = writeMidiFile(parseMusicSource(kTwoTracks, QStringLiteral("t.txt")));
  EXPECT_THROW(readMidiFile(file.left(file.size() - 1)), fhmidi::MidiFormatError);
  EXPECT_THROW(readMidiFile(QByteArray("RIFF") + file.mid(4)), fhmidi::MidiFormatError);
  // A track without its end-of-track event: cut the last event and mend the chunk's length.
  QByteArray unended = file.left(file.size() - 4);
  const auto [start, length] = trackChunks(file).back();
  const quint32 shorter = length - 4;
  for (int i = 0; i < 4; ++i) unended[start - 4 + i] = char((shorter >> (24 - 8 * i)) & 0xFF);
  EXPECT_THROW(readMidiFile(unended), fhmidi::MidiFormatError);
}

TEST(MidiFile, LengthFollowsTheTempoMap) {
  // Two bars at 120 (4 s), then two bars at 60 (8 s).
  const QString source = QStringLiteral("tempo 120\ntrack p program 1\nsection fast 2\np: 1 c4\nsection slow 2 tempo 60\np: 1 c4\nform fast slow\n");
  const fhmidi::MidiSummary summary = readMidiFile(writeMidiFile(parseMusicSource(source, QStringLiteral("t.txt"))));
  ASSERT_EQ(summary.tempos.size(), 2u);
  EXPECT_EQ(summary.tempos[1].tick, 4 * 480 * 2);
  EXPECT_NEAR(summary.seconds, 12.0, 1e-6);
}

}  // namespace
}  // namespace fh::test
