#include "platform/base/Guard.h"
#include "platform/base/Ui.h"
#include "platform/desktop/Application.h"
#include "startup/Lending.h"
#include "startup/Main.h"
#include "startup/ProgramOptions.h"
#include "startup/TerminationHandling.h"

#include <QStringList>
#include <QWidget>

#include <cstdio>

int main(int argc, char** argv) {
  // The options are read before the application starts, so that --help needs no desktop.
  QStringList words;
  for (int i = 1; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
  const fh::ProgramOptions options = fh::readProgramOptions(words);
  if (options.help) {
    std::fputs(fh::kProgramUsage, stdout);
    return 0;
  }
  if (!options.problem.isEmpty()) {
    std::fprintf(stderr, "fernhollow: unknown option '%s'\n\n%s", options.problem.toLocal8Bit().constData(), fh::kProgramUsage);
    return 2;
  }
  fh::AuthorMode = options.author;

  fh::Application app(argc, argv);
  fh::handleTerminationRequests();
  fh::LendWindows();
  fh::guarded("start-up", fh::Main);

  // The program ends through its windows; with none left up there is nothing to wait for.
  int exitCode = 0;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    exitCode = QApplication::exec();
    break;
  }
  // Every way out ends here or in a handler's End, and both end through the Ui's quit, so that the
  // program's last acts run while the application still stands.
  fh::ui().quit(exitCode);
  return exitCode;
}
