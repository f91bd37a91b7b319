#pragma once

#include "Song.h"

#include <QString>

namespace fh::fhmidi {

// A mistake in a music source, with the file and line to mend.
struct SourceError {
  QString file;
  int line = 0;
  QString text;
  QString where() const { return line > 0 ? QStringLiteral("%1:%2").arg(file).arg(line) : file; }
};

// Reads a piece written in the notation of world/music/README.md. fileName only names the
// source in errors.
Song parseMusicSource(const QString& text, const QString& fileName);

}  // namespace fh::fhmidi
