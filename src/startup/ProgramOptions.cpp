#include "startup/ProgramOptions.h"

namespace fh {

const char* const kProgramUsage =
    "Usage: fernhollow [--author]\n"
    "\n"
    "Starts the game on its opening screen.\n"
    "\n"
    "  --author   for world authors: the main window shows its three edit buttons (Set Edit,\n"
    "             Shot Edit, Save), and F2 enters edit mode and leaves it again. In edit mode the\n"
    "             shot's hotspots show as named outlines: a right press on empty ground draws a new\n"
    "             one, a right drag sizes it, a left drag moves it, a double click opens its dialog.\n"
    "             Save writes the set file into the Database folder.\n"
    "  --help     shows this help\n";

bool AuthorMode = false;

ProgramOptions readProgramOptions(const QStringList& words) {
  ProgramOptions options;
  for (const QString& word : words) {
    if (word == QLatin1String("--author"))
      options.author = true;
    else if (word == QLatin1String("--help") || word == QLatin1String("-h"))
      options.help = true;
    else if (options.problem.isEmpty())
      options.problem = word;
  }
  return options;
}

}  // namespace fh
