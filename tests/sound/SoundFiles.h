#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace fh::test {

// A 16-bit mono wave file of a steady tone, and a MIDI file of one piano note.
QByteArray toneWave(int milliseconds);
QByteArray noteMidi(int milliseconds);

// Runs the event loop until the condition holds or the time is up; tells whether it holds.
bool waitUntil(const std::function<bool()>& condition, int timeoutMilliseconds = 3000);
inline void runEventsFor(int milliseconds) { waitUntil([] { return false; }, milliseconds); }

// Root mean square of the 16-bit samples that SDL's disk driver wrote; 0 for silence.
double rmsOfRawAudio(const QString& path);
// The longest run of silence, in milliseconds, between the first and the last sound that SDL's disk
// driver wrote at 44100 Hz stereo: 0 when the sound never pauses.
double longestSilenceInside(const QString& path);
// How much the disk driver wrote, and how much of that wasn't silence.
double secondsOfRawAudio(const QString& path);
double secondsHeard(const QString& path);

// Sets an environment variable for the lifetime of the object.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const QByteArray& value)
      : m_name(name), m_before(qgetenv(name)), m_wasSet(qEnvironmentVariableIsSet(name)) {
    qputenv(name, value);
  }
  ~ScopedEnvironment() { m_wasSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  const char* m_name;
  QByteArray m_before;
  bool m_wasSet;
};

}  // namespace fh::test
