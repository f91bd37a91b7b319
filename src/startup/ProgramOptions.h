#pragma once

#include <QString>
#include <QStringList>

namespace fh {

// What the command line asks of the program. A player starts it without options; an author
// starts it with --author to edit the world.
struct ProgramOptions {
  bool author = false;
  bool help = false;
  QString problem;  // a word the program doesn't know; empty when all were understood
};

// Reads the words after the program's name.
ProgramOptions readProgramOptions(const QStringList& words);

// The program's --help.
extern const char* const kProgramUsage;

// Set from --author at the start: the main view shows its edit buttons, and F2 enters edit mode.
extern bool AuthorMode;

}  // namespace fh
