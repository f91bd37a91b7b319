#pragma once

#include <functional>

class QString;

namespace fh {

// Runs an event handler so that nothing thrown crosses Qt's event loop. A run-time failure shows the
// failure report (what failed, and where) and ends the program; the program's End ends it quietly.
// Only the mouse dispatcher and the game clock tick catch failures themselves, and silently.
void guarded(const char* where, const std::function<void()>& handler);

// The failure report's text, for the guard and for tests.
QString failureReport(int number, const QString& message, const char* where);

}  // namespace fh
