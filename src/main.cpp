#include "platform/base/Guard.h"
#include "platform/base/Ui.h"
#include "platform/desktop/Application.h"
#include "startup/Lending.h"
#include "startup/Main.h"
#include "startup/TerminationHandling.h"

#include <QWidget>

int main(int argc, char** argv) {
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
