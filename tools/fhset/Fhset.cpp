#include "Fhset.h"

#include "WorldBuild.h"
#include "WorldDump.h"

#include "platform/base/Failure.h"
#include "platform/files/ByteFile.h"
#include "world/cSet.h"

#include <QFileInfo>

#include <optional>

namespace fh::fhset {

namespace {

const char* const kUsage = R"(Usage:
  fhset dump FILE.set           print the world in FILE.set as text
  fhset build TEXT -o FILE.set  write the world described in TEXT to FILE.set
  fhset --help                  show this help

The text form has one field a line; indentation is only for the eye, and lines that
begin with # are comments:

  set Fernhollow
  current-shot -1

  shot Porch
    to-left Garden
    to-right Hall
    elapsed-time yes

    hotspot FrontDoor
      left 120
      top 40
      width 80
      height 200
      icon 5
      quiet no
      enabled yes
      rollover showdialogstring front door
      do goto shot hall

A text is the rest of its line. One that begins with a blank or a double quote, or that
holds a control character, is written in double quotes with the escapes \\, \" and
\xHH (a byte of the set file). Texts hold at most 64 Windows-1252 characters. Counts
follow from the records. A flag is yes or no, or the number that a foreign file held
when it was neither -1 nor 0. A 'header' field keeps a record's tag when it is not the usual
one, so that a damaged file can be written back as it was.

dump exits with 1 when the file is damaged (it still prints what it read); build exits
with 1 and writes nothing when the text has problems, each told with its line.
)";

int usageError(QTextStream& err, const QString& sentence) {
  err << "fhset: " << sentence << "\n" << "Try 'fhset --help'.\n";
  return 2;
}

std::optional<QByteArray> readFile(const QString& path, QTextStream& err) {
  try {
    return ByteFile::openForReading(path).bytes();
  } catch (const RuntimeFailure&) {
    err << "fhset: can't read " << path << "\n";
    return std::nullopt;
  }
}

int dump(const QString& path, QTextStream& out, QTextStream& err) {
  const auto bytes = readFile(path, err);
  if (!bytes) return 2;
  const Dump result = dumpSetFile(*bytes, QFileInfo(path).fileName());
  out << result.text;
  for (const QString& damage : result.damage) err << path << ": " << damage << "\n";
  return result.damage.isEmpty() ? 0 : 1;
}

int build(const QString& textPath, const QString& setPath, QTextStream& err) {
  const auto text = readFile(textPath, err);
  if (!text) return 2;
  const Built result = buildSet(*text, textPath);
  for (const QString& problem : result.problems) err << problem << "\n";
  if (!result.set) {
    err << "fhset: " << setPath << " was not written\n";
    return 1;
  }
  try {
    ByteFile file = ByteFile::openForWriting(setPath);
    result.set->Save(file);
    file.close();
  } catch (const RuntimeFailure& failure) {
    err << "fhset: can't write " << setPath << ": " << failure.message() << "\n";
    return 2;
  }
  return 0;
}

}  // namespace

int runFhset(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  if (arguments.isEmpty()) return usageError(err, QStringLiteral("no command given"));
  const QString command = arguments.first();
  if (command == u"--help" || command == u"-h" || command == u"help") {
    out << kUsage;
    return 0;
  }
  if (command == u"dump") {
    if (arguments.size() != 2) return usageError(err, QStringLiteral("dump takes one set file"));
    return dump(arguments[1], out, err);
  }
  if (command == u"build") {
    QString textPath;
    QString setPath;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
      if (arguments[i] == u"-o" && i + 1 < arguments.size() && setPath.isEmpty())
        setPath = arguments[++i];
      else if (textPath.isEmpty() && arguments[i] != u"-o")
        textPath = arguments[i];
      else
        return usageError(err, QStringLiteral("build takes one text file and -o with the set file to write"));
    }
    if (textPath.isEmpty() || setPath.isEmpty())
      return usageError(err, QStringLiteral("build takes one text file and -o with the set file to write"));
    return build(textPath, setPath, err);
  }
  return usageError(err, QStringLiteral("unknown command '%1'").arg(command));
}

}  // namespace fh::fhset
