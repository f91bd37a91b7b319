#pragma once

#include <QStringList>
#include <QTextStream>

namespace fh::fhdb {

// Runs fhdb with its arguments (without the program name); returns the exit code:
// 0 done, 1 the database said no (a missing query, parameter, column...), 2 unusable command line or file.
int runFhdb(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::fhdb
