#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace fh {

// The game's timer: it fires every Interval milliseconds while Enabled, and not at all with an
// Interval of 0. Setting either while it runs starts the count anew. Each tick runs through the
// entry guard under the timer's name, unless the timer was made to handle its own failures.
class Timer : public QObject {
 public:
  explicit Timer(const char* name, QObject* parent = nullptr);

  bool Enabled() const { return m_enabled; }
  int Interval() const { return m_interval; }
  void setEnabled(bool enabled);
  void setInterval(int milliseconds);

  // What a tick does.
  std::function<void()> onTick;

 private:
  void restart();

  const char* m_name;
  QTimer m_timer;
  bool m_enabled = false;
  int m_interval = 0;
};

}  // namespace fh
