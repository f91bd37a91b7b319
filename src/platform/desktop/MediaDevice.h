#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace fh {

// The device's Mode.
inline constexpr int kModeNotOpen = 524;
inline constexpr int kModeStopped = 525;
inline constexpr int kModePlaying = 526;

// The notification codes that come with Done.
inline constexpr int kNotifySuccessful = 1;
inline constexpr int kNotifyAborted = 4;

// A media device as the game drives it: properties set, then a command word. A "WaveAudio" device
// plays a wave file on a mixer channel of its own; a "Sequencer" plays a MIDI file as the program's
// one piece of music.
//
// The device keeps a position in its sound. "play" runs on from it, "stop" halts the sound and holds
// the position, "prev" puts it back to the start, "close" forgets the file. A sound that plays to its
// end leaves the device stopped at the end. "open" (in any case, like every word) opens FileName,
// a name in the game's form, closing whatever the device held before.
//
// A play that ends, by running out or by "stop", reports Done when Notify is set. The report always
// comes later from the event loop, never inside the command that caused it. Commands return at once:
// Wait and Shareable are kept for the game that sets them and change nothing here.
//
// Looping tells a wave device that the game plays its sound again from the start each time it ends.
// Going through the event loop for that would leave a gap of a buffer or more, a click at every
// repeat; so such a device runs on into the next pass itself, within the same audio buffer, and still
// reports Done at each end. A "prev" and "play" in answer to that Done take up the pass that already
// runs; when the Done has been handled without them, the device falls silent.
//
// "stop", "prev" and "close" on a device that isn't open do nothing. A command that can't be carried
// out throws a RuntimeFailure: an unknown word, a file that isn't there or can't be played, a device
// type other than the two, "play" on a closed device, no audio output.
class MediaDevice : public QObject {
  Q_OBJECT
 public:
  explicit MediaDevice(int index = 0, QObject* parent = nullptr);
  ~MediaDevice() override;

  QString FileName;
  QString DeviceType;
  bool Notify = false;
  bool Wait = false;
  bool Shareable = false;
  bool Looping = false;

  void Command(const QString& word);
  int Mode() const { return m_mode; }
  // The device's number in its control array; Done reports it.
  int Index() const { return m_index; }
  // Where a wave device stands and how long its sound is, in milliseconds; 0 for music.
  int Position() const;
  int Length() const;

 signals:
  void Done(int index, int notifyCode);

 private:
  friend class AudioOutput;
  struct Loaded;

  void open();
  void play();
  void stop();
  void rewind();
  void close();

  // From the audio output, on the event loop's thread.
  void playEnded(unsigned playNumber);
  void musicTakenAway();
  void release() { close(); }

  void haltWave(bool keepPosition);
  void reportDone(int notifyCode, bool endsPass = false);
  void endUnclaimedPass();
  int milliseconds(unsigned bytes) const;

  int m_index;
  int m_mode = kModeNotOpen;
  std::unique_ptr<Loaded> m_loaded;
};

}  // namespace fh
