#pragma once

#include <QApplication>

namespace fh {

// The Qt application, with a last net under every event: whatever a handler lets escape is reported
// and ends the program, so that no exception ever unwinds through Qt's event loop.
class Application : public QApplication {
 public:
  Application(int& argc, char** argv);
  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace fh
