#include "platform/desktop/AudioOutput.h"

#include "platform/base/Failure.h"
#include "platform/desktop/MediaDevice.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <atomic>
#include <iterator>

namespace fh {

namespace {

constexpr int kChannelCount = 64;
// The General MIDI sound bank of the system's fluid-soundfont-gm package.
constexpr const char* kSoundFont = "/usr/share/sounds/sf2/FluidR3_GM.sf2";

// Shared with the audio thread. Each channel's play number is written before its play starts, and
// its byte count grows while the mixer takes the chunk's samples.
std::array<std::atomic<unsigned>, kChannelCount> channelPlayNumber{};
std::array<std::atomic<std::uint64_t>, kChannelCount> channelMixedBytes{};
// The length of a looping channel's chunk, so that the audio thread sees each pass end; 0 otherwise.
std::array<std::atomic<std::uint32_t>, kChannelCount> channelLoopBytes{};
std::atomic<unsigned> musicPlayNumber{0};
// While the output closes, its ends are nobody's business.
std::atomic<bool> closing{false};

QString sdlError() { return QString::fromUtf8(SDL_GetError()); }

// Hands a function to the Qt event loop from any thread. Without an application (at the very end
// of the process) there is nobody left to tell.
template <typename Function>
void postToEventLoop(Function function) {
  QCoreApplication* app = QCoreApplication::instance();
  if (app == nullptr) return;
  QMetaObject::invokeMethod(app, std::move(function), Qt::QueuedConnection);
}

}  // namespace

AudioOutput& AudioOutput::instance() {
  // Never destroyed: devices may still stop and close while static objects go away at exit.
  static AudioOutput* output = new AudioOutput;
  return *output;
}

void AudioOutput::open() {
  if (m_open) return;
  // SDL would otherwise catch SIGINT and SIGTERM for an event queue that nobody reads, and the
  // program would no longer end on them; the program's own handling of them stays in charge.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) throw RuntimeFailure(Failure::DeviceUnavailable, sdlError());
  // MIDI needs FluidSynth; wave sounds don't, and a piece of music that can't be read says so itself.
  Mix_Init(MIX_INIT_MID);
  Mix_SetSoundFonts(kSoundFont);
  if (Mix_OpenAudio(44100, AUDIO_S16SYS, 2, 1024) != 0) {
    const QString reason = sdlError();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    throw RuntimeFailure(Failure::DeviceUnavailable, reason);
  }
  m_allocatedChannels = Mix_AllocateChannels(kChannelCount);
  closing = false;
  Mix_ChannelFinished(&AudioOutput::onChannelFinished);
  Mix_HookMusicFinished(&AudioOutput::onMusicFinished);
  m_open = true;
}

void AudioOutput::close() {
  if (!m_open) return;
  MediaDevice* holders[kChannelCount + 1] = {};
  std::copy(std::begin(m_channelOwners), std::end(m_channelOwners), holders);
  holders[kChannelCount] = m_musicOwner;
  for (MediaDevice* device : holders)
    if (device != nullptr) device->release();
  closing = true;
  Mix_ChannelFinished(nullptr);
  Mix_HookMusicFinished(nullptr);
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  std::fill(std::begin(m_channelOwners), std::end(m_channelOwners), nullptr);
  m_musicOwner = nullptr;
  m_allocatedChannels = 0;
  m_open = false;
}

int AudioOutput::claimChannel(MediaDevice& owner) {
  for (int channel = 0; channel < m_allocatedChannels; ++channel) {
    if (m_channelOwners[channel] != nullptr) continue;
    m_channelOwners[channel] = &owner;
    return channel;
  }
  throw RuntimeFailure(Failure::DeviceUnavailable, QStringLiteral("no free mixer channel"));
}

void AudioOutput::releaseChannel(int channel) {
  if (channel < 0 || channel >= kChannelCount) return;
  Mix_HaltChannel(channel);
  m_channelOwners[channel] = nullptr;
}

unsigned AudioOutput::playChannel(int channel, Mix_Chunk& chunk, bool looping) {
  const unsigned number = nextPlayNumber();
  channelPlayNumber[channel] = number;
  channelMixedBytes[channel] = 0;
  channelLoopBytes[channel] = looping ? chunk.alen : 0;
  // The mixer drops a channel's effects when its play ends; the counter goes on again each time.
  Mix_UnregisterAllEffects(channel);
  Mix_RegisterEffect(channel, &AudioOutput::countMixedBytes, nullptr, nullptr);
  if (Mix_PlayChannel(channel, &chunk, looping ? -1 : 0) < 0) throw RuntimeFailure(Failure::DeviceUnavailable, sdlError());
  return number;
}

std::uint64_t AudioOutput::haltChannel(int channel) {
  Mix_HaltChannel(channel);
  return channelMixedBytes[channel];
}

unsigned AudioOutput::playMusic(MediaDevice& owner, _Mix_Music& music) {
  if (m_musicOwner != nullptr && m_musicOwner != &owner) m_musicOwner->musicTakenAway();
  m_musicOwner = &owner;
  const unsigned number = nextPlayNumber();
  musicPlayNumber = number;
  if (Mix_PlayMusic(&music, 0) != 0) throw RuntimeFailure(Failure::DeviceUnavailable, sdlError());
  return number;
}

void AudioOutput::pauseMusic(const MediaDevice& owner) {
  if (m_musicOwner == &owner) Mix_PauseMusic();
}

unsigned AudioOutput::resumeMusic(const MediaDevice& owner) {
  const unsigned number = musicPlayNumber;
  if (m_musicOwner != &owner) return 0;
  if (Mix_PlayingMusic() != 0) {
    Mix_ResumeMusic();
  } else {
    // The piece ran out just before it was paused: this play ends at once.
    postToEventLoop([number] { instance().musicEnded(number); });
  }
  return number;
}

void AudioOutput::haltMusic(const MediaDevice& owner) {
  if (m_musicOwner == &owner) Mix_HaltMusic();
}

void AudioOutput::forgetMusic(const MediaDevice& owner) {
  if (m_musicOwner != &owner) return;
  Mix_HaltMusic();
  m_musicOwner = nullptr;
}

void AudioOutput::channelEnded(int channel, unsigned playNumber) {
  if (channel < 0 || channel >= kChannelCount) return;
  if (MediaDevice* owner = m_channelOwners[channel]) owner->playEnded(playNumber);
}

void AudioOutput::musicEnded(unsigned playNumber) {
  if (m_musicOwner != nullptr) m_musicOwner->playEnded(playNumber);
}

// On the audio thread, or inside Mix_HaltChannel on ours.
void AudioOutput::onChannelFinished(int channel) {
  if (closing || channel < 0 || channel >= kChannelCount) return;
  const unsigned number = channelPlayNumber[channel];
  postToEventLoop([channel, number] { instance().channelEnded(channel, number); });
}

void AudioOutput::onMusicFinished() {
  if (closing) return;
  const unsigned number = musicPlayNumber;
  postToEventLoop([number] { instance().musicEnded(number); });
}

// On the audio thread, for each piece of the chunk that the mixer takes; a looping chunk's pieces run
// across its end, and the mixer doesn't tell of such an end itself.
void AudioOutput::countMixedBytes(int channel, void*, int length, void*) {
  if (channel < 0 || channel >= kChannelCount || length <= 0) return;
  const std::uint64_t before = channelMixedBytes[channel].fetch_add(static_cast<std::uint64_t>(length));
  const std::uint32_t loopBytes = channelLoopBytes[channel];
  if (loopBytes == 0 || closing) return;
  if ((before + static_cast<std::uint64_t>(length)) / loopBytes == before / loopBytes) return;
  const unsigned number = channelPlayNumber[channel];
  postToEventLoop([channel, number] { instance().channelEnded(channel, number); });
}

void CloseAudioOutput() { AudioOutput::instance().close(); }

}  // namespace fh
