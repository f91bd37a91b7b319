#include "platform/desktop/Timer.h"

#include "platform/base/Guard.h"

namespace fh {

Timer::Timer(const char* name, QObject* parent) : QObject(parent), m_name(name) {
  connect(&m_timer, &QTimer::timeout, this, [this] {
    if (onTick) guarded(m_name, onTick);
  });
}

void Timer::setEnabled(bool enabled) {
  m_enabled = enabled;
  restart();
}

void Timer::setInterval(int milliseconds) {
  m_interval = milliseconds;
  restart();
}

void Timer::restart() {
  if (m_enabled && m_interval > 0) m_timer.start(m_interval);
  else m_timer.stop();
}

}  // namespace fh
