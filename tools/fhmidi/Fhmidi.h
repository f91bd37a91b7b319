#pragma once

#include <QStringList>
#include <QTextStream>

namespace fh::fhmidi {

// Runs fhmidi with its arguments (without the program name); returns the exit code:
// 0 done, 1 a music source or MIDI file has a mistake, 2 unusable command line or missing folder.
int runFhmidi(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::fhmidi
