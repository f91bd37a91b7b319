#pragma once

#include <functional>

namespace fh {

// Requests from outside to end the program: SIGTERM (a shutdown, a logout, `kill`), SIGINT (Ctrl+C),
// SIGHUP (the terminal or the session went away) and the desktop session's own end. `handler` runs
// on the event loop through the entry guard, never inside a signal handler, and also behind a modal
// dialog, since those loops watch the same sockets. It runs once: later requests are left alone
// while it works. It is expected to end the program.
//
// Call once, with the application object made. A signal that was ignored when the program started
// (SIGHUP under nohup) stays ignored. When the wake-up pipe can't be made the signals keep their
// default action and end the program at once, as they would without this.
void onTerminationRequest(std::function<void()> handler);

}  // namespace fh
