#include "platform/base/Guard.h"
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
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible()) return QApplication::exec();
  return 0;
}
