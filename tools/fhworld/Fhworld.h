#pragma once

#include <QStringList>
#include <QTextStream>

namespace fh::fhworld {

// Runs fhworld with its arguments (without the program name); returns the exit code:
// 0 the world is whole, 1 it has problems, 2 an unusable command line or database.
int runFhworld(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::fhworld
