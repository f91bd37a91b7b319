#include "world/SetFileFields.h"

#include "platform/Ansi.h"
#include "platform/ByteFile.h"
#include "platform/Failure.h"
#include "platform/Ui.h"

#include <algorithm>

namespace fh::setfile {

void putTag(ByteFile& file, const QString& header) { file.putBytes(toAnsi(header)); }

void getTag(ByteFile& file, QString& header, const QString& tag, const QString& mismatchTitle) {
  // One byte a character: the tag read is as long as the header the record holds. Tags are plain
  // ASCII, so the bytes can be compared as they stand, and a matching tag makes no new text.
  const QByteArrayView bytes = file.takeBytes(header.size());
  if (QLatin1StringView(bytes) == tag) {
    if (header != tag) header = tag;
    return;
  }
  header = fromAnsi(bytes);
  MsgBox(QStringLiteral("File badness"), Buttons::Ok, mismatchTitle);
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
