#pragma once

#include <QStringList>
#include <QTextStream>

namespace fh::fhart {

// Runs fhart with its arguments (without the program name); returns the exit code:
// 0 done, 1 a picture could not be drawn or written, 2 unusable command line, folder or file.
// What the renderer leaves out of a picture is told on err but is no failure.
int runFhart(const QStringList& arguments, QTextStream& out, QTextStream& err);

}  // namespace fh::fhart
