#include "world/SetFileFields.h"

#include "platform/base/Ansi.h"
#include "platform/base/Failure.h"
#include "platform/base/Ui.h"
#include "platform/files/ByteFile.h"

#include <algorithm>

namespace fh::setfile {

namespace {

constexpr int kMostMismatches = 10;

}  // namespace

void putTag(ByteFile& file, const QString& header) { file.putBytes(toAnsi(header)); }

void getTag(ByteFile& file, QString& header, const QString& tag, const QString& mismatchTitle, const SetReading& reading) {
  // One byte a character: the tag read is as long as the header the record holds. Tags are plain
  // ASCII, so the bytes can be compared as they stand, and a matching tag makes no new text.
  const qsizetype at = file.position();
  const QByteArrayView bytes = file.takeBytes(header.size());
  if (QLatin1StringView(bytes) == tag) {
    if (header != tag) header = tag;
    return;
  }
  header = fromAnsi(bytes);
  const QString fileName = file.name().isEmpty() ? QStringLiteral("the set file") : file.name();
  MsgBox(QStringLiteral("File badness"), Buttons::Ok, mismatchTitle,
         QStringLiteral("The record at byte %1 of %2 should begin with \"%3\".").arg(at).arg(fileName, tag));
  // A file of rubbish seems to hold a record every few bytes; past this many the player is asked
  // nothing more, and the file is given up.
  if (++reading.mismatches < kMostMismatches) return;
  throw RuntimeFailure(Failure::InvalidFileFormat,
                       QStringLiteral("%1 is damaged: %2 of its records have the wrong header, the last at byte %3")
                           .arg(fileName).arg(reading.mismatches).arg(at));
}

QString getText(ByteFile& file, const SetReading& reading) {
  // Only blanks are trimmed: a tab or a no-break space at either end is part of the text.
  // A blank is the one byte 0x20 and back, so the bytes are trimmed before they become text.
  const QByteArrayView bytes = file.takeBytes(kTextLength);
  qsizetype end = bytes.size();
  while (end > 0 && bytes[end - 1] == ' ') --end;
  qsizetype start = 0;
  if (!reading.keepLeadingBlanks)
    while (start < end && bytes[start] == ' ') ++start;
  return fromAnsi(bytes.sliced(start, end - start));
}

qsizetype roomFor(const ByteFile& file, i16 count, qsizetype recordSize, const char* what) {
  if (count < 0)
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(count));
  return std::min<qsizetype>(count, file.remaining() / recordSize);
}

}  // namespace fh::setfile
