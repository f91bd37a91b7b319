#pragma once

#include "Song.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <vector>

namespace fh::fhmidi {

// A Standard MIDI File of type 1: a first track with the title, tempo map and time signature,
// then one track per instrument. Channel events use running status; meta events, which cancel
// it, are only written before a track's first note and at its end.
QByteArray writeMidiFile(const Song& song);

// What a MIDI file holds, as far as the checks of a piece need it.
struct MidiTrackSummary {
  QString name;
  int noteOns = 0;
  std::map<int, int> notesByChannel;   // channel from 1 to 16 -> note-ons
  std::map<int, int> programByChannel; // channel from 1 to 16 -> last program change
  qint64 endTick = 0;                  // tick of its end-of-track event
};

struct MidiSummary {
  int format = 0;
  int ticksPerQuarter = 0;
  std::vector<TempoChange> tempos;
  std::vector<MidiTrackSummary> tracks;
  double seconds = 0;  // to the last end-of-track
};

// Thrown when bytes are no well-formed MIDI file.
struct MidiFormatError {
  QString text;
};

MidiSummary readMidiFile(const QByteArray& bytes);

}  // namespace fh::fhmidi
