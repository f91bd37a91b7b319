#include "platform/desktop/Application.h"

#include "platform/base/Guard.h"
#include "platform/desktop/DesktopUi.h"

namespace fh {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Fernhollow"));
  setOrganizationName(QStringLiteral("Fernhollow"));
  // The player answers the game's questions in Qt's dialogs.
  setUi(&desktopUi());
}

bool Application::notify(QObject* receiver, QEvent* event) {
  bool handled = false;
  guarded("event dispatch", [&] { handled = QApplication::notify(receiver, event); });
  return handled;
}

}  // namespace fh
