#pragma once

#include <QString>

#include <vector>

namespace fh::fhmidi {

// Ticks per quarter note of every file fhmidi writes.
inline constexpr int kTicksPerQuarter = 480;

// General MIDI's percussion channel, counted from 1 as musicians do.
inline constexpr int kDrumChannel = 10;

struct Note {
  qint64 start = 0;
  qint64 end = 0;
  int pitch = 60;
  int velocity = 90;
};

// One instrument of a piece, written as one track on one channel.
struct SongTrack {
  QString name;
  int channel = 1;  // 1 to 16
  int program = 0;  // 0 to 127, as sent in the program change
  int volume = 100;
  int pan = 64;
  int reverb = 40;
  int chorus = 0;
  std::vector<Note> notes;
};

struct TempoChange {
  qint64 tick = 0;
  double quartersPerMinute = 120;
};

// A whole piece in ticks, ready to be written as a MIDI file.
struct Song {
  QString title;
  int beatsPerBar = 4;
  int beatUnit = 4;
  std::vector<TempoChange> tempos;  // sorted by tick, the first at tick 0
  std::vector<SongTrack> tracks;
  qint64 endTick = 0;
};

// Seconds from the start to a tick, following the tempo map.
double secondsAt(const std::vector<TempoChange>& tempos, qint64 tick);

}  // namespace fh::fhmidi
