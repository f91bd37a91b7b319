#pragma once

#include <QStringList>
#include <QTextStream>

namespace fh::fhset {

// Runs the command line (without the program's name); returns the exit code: 0 done, 1 the input
// is damaged or wrong (said on `err`), 2 the command line or a file could not be used.
int runFhset(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::fhset
