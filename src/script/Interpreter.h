#pragma once

#include "platform/base/Values.h"

#include <QString>

// The script interpreter: a tiny line language with one command a line and `if` ... `endif` as its
// only control structure. Failures are not caught here: they abandon the script at the failing line,
// with the effects of earlier lines standing, and travel up to whoever started it.
namespace fh {

// Runs a whole script: lines end in CR LF; `if` blocks whose condition is false are skipped. A script
// that ends inside a skipped block says so in a message box.
void RunScript(const QString& text);

// Runs one line. The result 10 (kSkipToEndif) says that an `if` was false; any other value means
// nothing, except for `loadsound`, whose result is the sound manager's.
i16 RunScriptLine(const QString& line);

}  // namespace fh
