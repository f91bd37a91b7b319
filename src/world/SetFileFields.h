#pragma once

#include "platform/base/Failure.h"
#include "platform/base/Values.h"

#include <QString>

#include <algorithm>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace fh {

class ByteFile;

// How a set file is read. The game reads with the defaults. A tool that must write a file back as it
// was keeps the leading blanks that the writer kept: the writer pads only on the right.
struct SetReading {
  bool keepLeadingBlanks = false;
  // The wrong tags met so far. A reading is of one file, so these are that file's.
  mutable int mismatches = 0;
};

class cShot;

// How a set file is written. The game, saving its world, also brings the database into line with each
// shot once its record is written; tools and tests write the file alone.
struct SetWriting {
  std::function<void(const cShot&)> afterShot;
};

// The fields that the Set, Shot and HotSpot records share.
namespace setfile {

// Every name, neighbour, rollover and script line takes exactly this many bytes.
constexpr qsizetype kTextLength = 64;

// Writes the tag's bare characters, whatever they are.
void putTag(ByteFile& file, const QString& header);
// Reads as many bytes as `header` holds back into it. Bytes that differ from `tag` show the
// record's mismatch message, which tells where in which file; they stay in `header` and the reading
// goes on. The tenth wrong tag of a reading ends it: the file is damaged beyond reading.
void getTag(ByteFile& file, QString& header, const QString& tag, const QString& mismatchTitle, const SetReading& reading);

// A fixed text as the game holds it: blanks gone from both ends, or only from the right.
QString getText(ByteFile& file, const SetReading& reading);

// How many of `count` records to reserve room for before they are read: no more than the rest of the
// file could hold. A negative count fails, as the game's array of 0 to count did; the count that was
// read stays in the record.
qsizetype roomFor(const ByteFile& file, i16 count, qsizetype recordSize, const char* what);

// Reads `count` child records into slots 0 to count - 1, and leaves the spare top slot at `count`
// empty, as the game's array of 0 to count did. Each is stored before it is read, so that a file
// that ends early leaves what it held.
template <class Record>
void loadRecords(ByteFile& file, i16 count, std::vector<std::shared_ptr<Record>>& records, const SetReading& reading,
                 const char* what) {
  records.clear();
  records.reserve(roomFor(file, count, Record::kEmptyRecordSize, what) + 1);
  for (i16 i = 0; i < count; ++i) {
    records.push_back(std::make_shared<Record>());
    records.back()->Load(file, reading);
  }
  records.push_back(nullptr);
}

// The first `count` slots, as far as there are any: the records without the spare top slot.
template <class Record>
std::span<const std::shared_ptr<Record>> counted(const std::vector<std::shared_ptr<Record>>& records, i16 count) {
  const std::size_t held = std::min(static_cast<std::size_t>(std::max<i16>(count, 0)), records.size());
  return std::span(records).first(held);
}

// Writes the first `count` child records; a missing one fails as the game's empty slot did.
template <class Record>
void saveRecords(ByteFile& file, i16 count, const std::vector<std::shared_ptr<Record>>& records, const SetWriting& writing,
                 const QString& owner) {
  for (i16 i = 0; i < count; ++i) {
    if (i >= static_cast<qsizetype>(records.size()) || !records[i])
      throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("record %1 of %2").arg(i).arg(owner));
    records[i]->Save(file, writing);
  }
}

}  // namespace setfile
}  // namespace fh
