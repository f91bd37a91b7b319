// Feeds any bytes to the world file reader, and to fhset's text form, and checks what they promise:
// - the reader fails only as "Input past end of file" or "Subscript out of range" (a negative count);
// - it makes no more records than the bytes could hold, and tells each wrong header once;
// - a world it reads whole comes back byte for byte from its text form;
// - text that builds a world builds the same world again from that world's dump.

#include "QuietUi.h"
#include "WorldBuild.h"
#include "WorldDump.h"

#include "platform/base/Failure.h"
#include "platform/files/ByteFile.h"
#include "world/cHotSpot.h"
#include "world/cSet.h"
#include "world/cShot.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fh {
namespace {

void require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

QByteArray savedBytes(const cSet& set) {
  ByteFile file = ByteFile::fromBytes({});
  set.Save(file);
  return file.bytes();
}

int wrongHeaders(const cSet& set) {
  int wrong = set.sHeader != u"Set";
  for (const auto& shot : set.shots()) {
    wrong += shot->sHeader != u"Shot";
    for (const auto& hotSpot : shot->hotSpots()) wrong += hotSpot->sHeader != u"HotSpot";
  }
  return wrong;
}

// Every record but the one being read when the file ended took its whole size from the bytes; a
// list grows past what it reserved only by that one record.
void requireRecordsFit(const cSet& set, qsizetype size) {
  const qsizetype shotRoom = size / cShot::kEmptyRecordSize + 1;
  const qsizetype hotSpotRoom = size / cHotSpot::kEmptyRecordSize + 1;
  const qsizetype lineRoom = size / setfile::kTextLength + 1;
  qsizetype shots = 0, hotSpots = 0, lines = 0;
  require(static_cast<qsizetype>(set.Shots.capacity()) <= 2 * shotRoom, "shots reserved within the file's size");
  for (const auto& shot : set.shots()) {
    ++shots;
    require(static_cast<qsizetype>(shot->HotSpots.capacity()) <= 2 * hotSpotRoom, "hotspots reserved within the file's size");
    for (const auto& hotSpot : shot->hotSpots()) {
      ++hotSpots;
      lines += hotSpot->ScriptLines.size();
      require(hotSpot->ScriptLines.capacity() <= 2 * lineRoom, "lines reserved within the file's size");
    }
  }
  require(shots * cShot::kEmptyRecordSize + hotSpots * cHotSpot::kEmptyRecordSize + lines * setfile::kTextLength <=
              size + cShot::kEmptyRecordSize + cHotSpot::kEmptyRecordSize,
          "records made within the file's size");
}

void checkReader(const QByteArray& bytes) {
  fhset::QuietUi quiet;
  ByteFile file = ByteFile::fromBytes(bytes);
  cSet set;
  bool whole = true;
  try {
    set.Load(file);
  } catch (const RuntimeFailure& failure) {
    require(failure.kind() == Failure::InputPastEndOfFile || failure.kind() == Failure::SubscriptOutOfRange,
            "the reader fails only at the end of the file or on a negative count");
    whole = false;
  }
  requireRecordsFit(set, bytes.size());
  require(quiet.messageBoxes() == wrongHeaders(set), "one message for each wrong header");
  if (!whole) return;

  // What the program writes of what it read, with the leading blanks it kept, is what the text gives.
  ByteFile again = ByteFile::fromBytes(bytes);
  cSet kept;
  kept.Load(again, SetReading{.keepLeadingBlanks = true});
  const fhset::Built built = fhset::buildSet(fhset::dumpSetFile(bytes, QStringLiteral("fuzz.set")).text.toUtf8(),
                                             QStringLiteral("fuzz.txt"));
  require(built.problems.isEmpty() && built.set, "the dump of a readable file builds");
  require(savedBytes(*built.set) == savedBytes(kept), "the dump builds the bytes the program writes");
}

void checkText(const QByteArray& bytes) {
  const fhset::Built built = fhset::buildSet(bytes, QStringLiteral("fuzz.txt"));
  require(built.problems.isEmpty() == static_cast<bool>(built.set), "a world exactly when there are no problems");
  if (!built.set) return;
  const QByteArray written = savedBytes(*built.set);
  const fhset::Dump dump = fhset::dumpSetFile(written, QStringLiteral("fuzz.set"));
  const fhset::Built again = fhset::buildSet(dump.text.toUtf8(), QStringLiteral("fuzz.txt"));
  require(again.set && savedBytes(*again.set) == written, "text builds the same world again from its dump");
}

}  // namespace
}  // namespace fh

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  fh::checkReader(bytes);
  fh::checkText(bytes);
  return 0;
}
