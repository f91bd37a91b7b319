#include "platform/desktop/TerminationRequests.h"

#include "platform/base/Guard.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace fh {

namespace {

// The self-pipe: the signal handler writes a byte to the end at 1, the event loop reads the end at 0.
int wakeUp[2] = {-1, -1};

// Only what is async-signal-safe: one write, with errno kept for the code the signal interrupted. A
// full pipe already holds a wake-up, so a failed write loses nothing.
extern "C" void wakeEventLoop(int) {
  const int savedErrno = errno;
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = ::write(wakeUp[1], &byte, 1);
  errno = savedErrno;
}

void catchSignal(int number) {
  struct sigaction current {};
  if (::sigaction(number, nullptr, &current) == 0 && current.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = wakeEventLoop;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  ::sigaction(number, &action, nullptr);
}

void drainWakeUps() {
  char bytes[16];
  while (::read(wakeUp[0], bytes, sizeof bytes) > 0) {
  }
}

}  // namespace

void onTerminationRequest(std::function<void()> handler) {
  QCoreApplication* app = QCoreApplication::instance();
  auto answer = [handler = std::move(handler), answered = std::make_shared<bool>(false)] {
    if (*answered) return;
    *answered = true;
    guarded("end of the program", handler);
  };

  if (auto* desktop = qobject_cast<QGuiApplication*>(app))
    QObject::connect(desktop, &QGuiApplication::commitDataRequest, desktop, [answer](QSessionManager&) { answer(); });

  // Non-blocking at both ends: the handler must never wait, and the reader stops when it is empty.
  if (::pipe2(wakeUp, O_NONBLOCK | O_CLOEXEC) != 0) return;
  auto* notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, app);
  QObject::connect(notifier, &QSocketNotifier::activated, app, [answer] {
    drainWakeUps();
    answer();
  });
  for (int number : {SIGTERM, SIGINT, SIGHUP}) catchSignal(number);
}

}  // namespace fh
