#include "world/SetFileFields.h"

#include "platform/Ansi.h"
#include "platform/ByteFile.h"
#include "platform/Failure.h"
#include "platform/Ui.h"

#include <algorithm>

namespace fh::setfile {

void putTag(ByteFile& file, const QString& header) { file.putBytes(toAnsi(header)); }

void getTag(ByteFile& file, QString& header, const QString& tag, const QString& mismatchTitle) {
  // One byte a character: the tag read is as long as the header the record holds.
  header = file.getText(header.size());
  if (header != tag) MsgBox(QStringLiteral("File badness"), Buttons::Ok, mismatchTitle);
}

QString getText(ByteFile& file, const SetReading& reading) {
  // Only blanks are trimmed: a tab or a no-break space at either end is part of the text.
  QString text = file.getText(kTextLength);
  qsizetype end = text.size();
  while (end > 0 && text[end - 1] == u' ') --end;
  qsizetype start = 0;
  if (!reading.keepLeadingBlanks)
    while (start < end && text[start] == u' ') ++start;
  // In place: the text is this function's own.
  text.truncate(end);
  text.remove(0, start);
  return text;
}

qsizetype roomFor(const ByteFile& file, i16 count, qsizetype recordSize, const char* what) {
  if (count < 0)
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(count));
  return std::min<qsizetype>(count, file.remaining() / recordSize);
}

}  // namespace fh::setfile
