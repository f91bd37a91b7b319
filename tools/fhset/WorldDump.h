#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace fh::fhset {

// The text form of a set file, and what is wrong with the file.
struct Dump {
  QString text;
  // Wrong headers, a negative count, an early end, bytes after the set: each a sentence that
  // begins with the byte offset. Empty for a sound file.
  QStringList damage;
};

// Reads the bytes as the game does, but keeping leading blanks, and writes out what was read. Never
// fails: of a damaged file it writes all it could read, with notes where it went wrong.
Dump dumpSetFile(const QByteArray& bytes, const QString& fileName);

}  // namespace fh::fhset
