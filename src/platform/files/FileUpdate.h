#pragma once

#include <QByteArray>
#include <QString>

namespace fh {

// What bringing a file up to date came to: written or left alone, or why it couldn't be written.
struct FileUpdate {
  bool written = false;
  QString error;  // empty when all went well
};

// Writes `bytes` to the file unless it already holds exactly them, so that a build step that makes
// the same output leaves the file and its time stamp alone. The new file replaces the old one whole,
// never half written.
FileUpdate writeFileIfChanged(const QString& path, const QByteArray& bytes);

}  // namespace fh
