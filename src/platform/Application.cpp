#include "platform/Application.h"

#include "platform/Guard.h"

namespace fh {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Fernhollow"));
  setOrganizationName(QStringLiteral("Fernhollow"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
  bool handled = false;
  guarded("event dispatch", [&] { handled = QApplication::notify(receiver, event); });
  return handled;
}

}  // namespace fh
