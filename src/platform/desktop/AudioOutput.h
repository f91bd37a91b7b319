#pragma once

#include <cstdint>

struct Mix_Chunk;
struct _Mix_Music;

namespace fh {

class MediaDevice;

// The program's one audio output: SDL's audio opened once, the mixer's channels and its music.
// Media devices borrow from it; nothing else in the game touches SDL.
//
// The mixer tells of a finished channel or piece on its own audio thread (or, for a halt, inside
// the halting call). Those reports only carry a play number across: they are posted to the Qt
// event loop, and there the device that started that play hears of its end.
class AudioOutput {
 public:
  static AudioOutput& instance();

  // Opens the output if it isn't open yet. No audio device is a DeviceUnavailable failure; the next
  // call tries again.
  void open();
  bool isOpen() const { return m_open; }
  // Releases every device that holds a sound or a channel, then closes the output.
  void close();

  // A mixer channel of the device's own, for as long as it holds a sound.
  int claimChannel(MediaDevice& owner);
  void releaseChannel(int channel);

  // Plays the chunk on the channel and returns the play's number; its end comes to the owner's
  // playEnded with that number. A looping chunk starts again at once each time it ends, without a
  // gap, and each of its ends is told as well.
  unsigned playChannel(int channel, Mix_Chunk& chunk, bool looping);
  // Halts the channel and tells how many bytes of the chunk had been mixed by then.
  std::uint64_t haltChannel(int channel);

  // One piece of music plays at a time; a device that starts one takes the music from the last.
  unsigned playMusic(MediaDevice& owner, _Mix_Music& music);
  void pauseMusic(const MediaDevice& owner);
  unsigned resumeMusic(const MediaDevice& owner);
  void haltMusic(const MediaDevice& owner);
  // The device lets go of the music when it closes.
  void forgetMusic(const MediaDevice& owner);

  AudioOutput(const AudioOutput&) = delete;
  AudioOutput& operator=(const AudioOutput&) = delete;

 private:
  AudioOutput() = default;
  unsigned nextPlayNumber() { return ++m_lastPlayNumber; }
  void channelEnded(int channel, unsigned playNumber);
  void musicEnded(unsigned playNumber);

  static void onChannelFinished(int channel);
  static void onMusicFinished();
  static void countMixedBytes(int channel, void* stream, int length, void* unused);

  bool m_open = false;
  unsigned m_lastPlayNumber = 0;
  MediaDevice* m_channelOwners[64] = {};
  int m_allocatedChannels = 0;
  MediaDevice* m_musicOwner = nullptr;
};

// Closes the audio output: at the end of the program, and in tests between different drivers.
void CloseAudioOutput();

}  // namespace fh
