#pragma once

#include <QStringList>
#include <QTextStream>

namespace fh::fhsound {

// Runs fhsound with its arguments (without the program name); returns the exit code:
// 0 done, 1 a sound source is wrong or a wave file cannot be written, 2 unusable command line or folder.
int runFhsound(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::fhsound
