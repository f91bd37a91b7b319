#include "MusicSource.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace fh::test {
namespace {

using fhmidi::parseMusicSource;
using fhmidi::Song;
using fhmidi::SourceError;

Song parsed(const QString& body) {
  return parseMusicSource(QStringLiteral("tempo 120\n") + body, QStringLiteral("piece.txt"));
}

// The line and text of the error a source makes; line 0 when it parses.
SourceError errorOf(const QString& body) {
  try {
    parsed(body);
  } catch (const SourceError& error) {
    return error;
  }
  return {};
}

std::vector<int> pitchesAt(const fhmidi::SongTrack& track, qint64 tick) {
  std::vector<int> pitches;
  for (const fhmidi::Note& note : track.notes)
    if (note.start == tick) pitches.push_back(note.pitch);
  std::sort(pitches.begin(), pitches.end());
  return pitches;
}

TEST(MusicSource, DrumsGoToChannelTenAndInstrumentsAroundIt) {
  QString body;
  for (int i = 1; i <= 10; ++i) body += QStringLiteral("track t%1 program %1\n").arg(i);
  body += QStringLiteral("track kit drums kit brush\nsection A 1\nkit: 4 kick snare kick snare\nform A\n");
  const Song song = parsed(body);
  EXPECT_EQ(song.tracks[8].channel, 9);
  EXPECT_EQ(song.tracks[9].channel, 11);
  EXPECT_EQ(song.tracks[10].channel, 10);
  EXPECT_EQ(song.tracks[10].program, 40);
  EXPECT_EQ(pitchesAt(song.tracks[10], 480), std::vector<int>{38});
}

TEST(MusicSource, AShortLineLoopsToFillItsSection) {
  const Song song = parsed(QStringLiteral("track d drums\nsection A 4\nd: 8 kick hat snare hat kick hat snare hat\nform A A\n"));
  EXPECT_EQ(song.tracks[0].notes.size(), 64u);
  EXPECT_EQ(song.endTick, 8 * 4 * 480);
}

TEST(MusicSource, ChordsRepeatsMacrosHoldsAndTransposition) {
  const Song song = parsed(QStringLiteral(
      "track p program 1 gate 100\n"
      "define up 8 c4 e4\n"
      "section A 3\n"
      "p: 4 Dm7 Dm7@c4 [$up]x2 | 2 c5 - | $up+2*2 2 r |\n"
      "form A\n"));
  const auto& track = song.tracks[0];
  EXPECT_EQ(pitchesAt(track, 0), (std::vector<int>{57, 60, 62, 65}));  // voiced from g3 up
  EXPECT_EQ(pitchesAt(track, 480), (std::vector<int>{60, 62, 65, 69}));
  EXPECT_EQ(pitchesAt(track, 960), std::vector<int>{60});
  EXPECT_EQ(pitchesAt(track, 1680), std::vector<int>{64});
  // The half note c5 held by "-" for another half note.
  const auto held = std::find_if(track.notes.begin(), track.notes.end(), [](const auto& n) { return n.pitch == 72; });
  ASSERT_NE(held, track.notes.end());
  EXPECT_EQ(held->end - held->start, 4 * 480);
  EXPECT_EQ(pitchesAt(track, 2 * 1920 + 240), std::vector<int>{66});  // e4 moved up a whole tone
}

TEST(MusicSource, SwingDelaysTheOffbeatEighth) {
  const Song song = parsed(QStringLiteral("swing 66\ntrack p program 1\nsection A 1\np: 8 c4 d4 e4 f4 4 g4 a4\nform A\n"));
  const auto& notes = song.tracks[0].notes;
  EXPECT_EQ(notes[1].start, 480 * 66 / 100);
  EXPECT_EQ(notes[2].start, 480);
  EXPECT_EQ(notes[5].start, 3 * 480);
}

TEST(MusicSource, AKeyStruckAgainEndsTheNoteBefore) {
  const Song song = parsed(QStringLiteral("track p program 1\nsection A 1\np: 2 c4 4 r c4+c4\nform A\n"));
  ASSERT_EQ(song.tracks[0].notes.size(), 2u);  // of the two c4 struck together one stays
  EXPECT_LE(song.tracks[0].notes[0].end, song.tracks[0].notes[1].start);
}

TEST(MusicSource, MistakesNameTheirLine) {
  EXPECT_EQ(errorOf(QStringLiteral("track p program 1\nsection A 1\np: 4 c4 h4 c4 c4\nform A\n")).line, 4);
  const SourceError bar = errorOf(QStringLiteral("track p program 1\nsection A 2\np: 4 c4 c4 c4 |\nform A\n"));
  EXPECT_EQ(bar.line, 4);
  EXPECT_TRUE(bar.text.contains(QStringLiteral("3 beats into bar 1"))) << bar.text.toStdString();
  EXPECT_EQ(bar.where(), QStringLiteral("piece.txt:4"));
  EXPECT_EQ(errorOf(QStringLiteral("track p program Kazoo\n")).line, 2);
  EXPECT_EQ(errorOf(QStringLiteral("track p program 1\ndefine a $b\ndefine b $a\nsection A 1\np: $a\nform A\n")).line, 3);
  EXPECT_EQ(errorOf(QStringLiteral("track p program 1\nsection A 1\np: 1 c4\nform A B\n")).line, 5);
  EXPECT_EQ(errorOf(QStringLiteral("track p program 1\nloudness 11\n")).line, 3);
}

}  // namespace
}  // namespace fh::test
