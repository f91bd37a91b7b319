#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace fh::fhmidi {

// General MIDI program from a number 1 to 128 or a name such as "Overdriven Guitar" or
// "overdriven_guitar" (case, spaces, hyphens and underscores do not count); 0-based as sent.
std::optional<int> programFromText(const QString& text);

// A drum kit for the percussion channel by its name (standard, room, power, electronic, tr808,
// jazz, brush, orchestra) or its program number 0 to 127.
std::optional<int> kitFromText(const QString& text);

// The key of a percussion sound by its short name: kick, snare, hat, ride...
std::optional<int> drumKey(const QString& name);
QString drumNames();

// Semitones above the root of a chord quality such as "", "m", "7", "maj7", "m7b5", "sus4".
std::optional<std::vector<int>> chordIntervals(const QString& quality);

}  // namespace fh::fhmidi
