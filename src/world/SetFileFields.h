#pragma once

#include "platform/Values.h"

#include <QString>

namespace fh {

class ByteFile;

// How a set file is read. The game reads with the defaults. A tool that must write a file back as it
// was keeps the leading blanks that the writer kept: the writer pads only on the right.
struct SetReading {
  bool keepLeadingBlanks = false;
};

// The fields that the Set, Shot and HotSpot records share.
namespace setfile {

// Every name, neighbour, rollover and script line takes exactly this many bytes.
constexpr qsizetype kTextLength = 64;

// Writes the tag's bare characters, whatever they are.
void putTag(ByteFile& file, const QString& header);
// Reads as many bytes as `header` holds back into it. Bytes that differ from `tag` show the
// record's mismatch message; they stay in `header` and the reading goes on.
void getTag(ByteFile& file, QString& header, const QString& tag, const QString& mismatchTitle);

// A fixed text as the game holds it: blanks gone from both ends, or only from the right.
QString getText(ByteFile& file, const SetReading& reading);

// How many of `count` records to reserve room for before they are read: no more than the rest of the
// file could hold. A negative count fails, as the game's array of 0 to count did; the count that was
// read stays in the record.
qsizetype roomFor(const ByteFile& file, i16 count, qsizetype recordSize, const char* what);

}  // namespace setfile
}  // namespace fh
