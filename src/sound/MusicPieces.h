#pragma once

#include <array>

namespace fh {

// A piece of music of the stereo: its MIDI file under "Audio\" and the label that names it.
struct MusicPiece {
  const char* file;
  const char* label;
};

// The stereo's five styles, three pieces each, in the order of its buttons. The file names keep
// the capitals they have on the CD.
struct MusicStyle {
  const char* name;
  std::array<MusicPiece, 3> pieces;
};

inline constexpr std::array<MusicStyle, 5> kMusicStyles{{
    {"Rock", {{{"ROCK1.mid", "Rock 1"}, {"ROCK2.mid", "Rock 2"}, {"ROCK3.mid", "Rock 3"}}}},
    {"Jazz", {{{"Jazz1.mid", "Jazz 1"}, {"Jazz2.mid", "Jazz 2"}, {"Jazz3.mid", "Jazz 3"}}}},
    {"Classical", {{{"Classical1.mid", "Classical 1"}, {"Classical2.mid", "Classical 2"}, {"Classical3.mid", "Classical 3"}}}},
    {"Soul", {{{"Soul1.mid", "Soul 1"}, {"Soul2.mid", "Soul 2"}, {"Soul3.mid", "Soul 3"}}}},
    {"Country", {{{"Country1.mid", "Country 1"}, {"Country2.mid", "Country 2"}, {"Country3.mid", "Country 3"}}}},
}};

}  // namespace fh
