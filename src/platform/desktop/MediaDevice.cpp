#include "platform/desktop/MediaDevice.h"

#include "platform/base/Failure.h"
#include "platform/desktop/AudioOutput.h"
#include "platform/files/FileNames.h"

#include <QFileInfo>
#include <QMetaObject>

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>

namespace fh {

namespace {

bool sameWord(const QString& a, const char* b) { return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0; }

QString sdlError() { return QString::fromUtf8(SDL_GetError()); }

}  // namespace

// What an open device holds. A wave device keeps its whole sound and plays a second chunk that
// starts at the position and shares the samples, or, looping from the start, the sound itself; a
// sequencer keeps its piece and where it stands.
struct MediaDevice::Loaded {
  enum class MusicAt { Start, Paused, End };

  bool isMusic = false;
  Mix_Chunk* sound = nullptr;
  Mix_Chunk* rest = nullptr;
  int channel = -1;
  std::uint32_t position = 0;   // bytes into the sound
  std::uint32_t restStart = 0;  // where the playing rest began
  bool looping = false;         // the sound plays round and round on its channel
  bool passRunsOn = false;      // a pass has ended, the next one sounds, and nobody has taken it up
  std::uint32_t frameBytes = 4;
  int bytesPerSecond = 44100 * 4;
  Mix_Music* music = nullptr;
  MusicAt musicAt = MusicAt::Start;
  unsigned playNumber = 0;

  void freeRest() {
    if (rest != nullptr) Mix_FreeChunk(rest);
    rest = nullptr;
  }
};

MediaDevice::MediaDevice(int index, QObject* parent) : QObject(parent), m_index(index) {}

MediaDevice::~MediaDevice() { close(); }

void MediaDevice::Command(const QString& word) {
  const QString w = word.trimmed();
  if (sameWord(w, "open")) return open();
  if (sameWord(w, "play")) return play();
  if (sameWord(w, "stop")) return stop();
  if (sameWord(w, "prev")) return rewind();
  if (sameWord(w, "close")) return close();
  throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("media command '%1'").arg(word));
}

int MediaDevice::milliseconds(unsigned bytes) const {
  if (!m_loaded || m_loaded->isMusic) return 0;
  return static_cast<int>(static_cast<long long>(bytes) * 1000 / m_loaded->bytesPerSecond);
}

int MediaDevice::Position() const { return m_loaded ? milliseconds(m_loaded->position) : 0; }

int MediaDevice::Length() const { return m_loaded && m_loaded->sound ? milliseconds(m_loaded->sound->alen) : 0; }

void MediaDevice::open() {
  close();
  const bool isWave = sameWord(DeviceType, "WaveAudio");
  if (!isWave && !sameWord(DeviceType, "Sequencer"))
    throw RuntimeFailure(Failure::DeviceUnavailable, QStringLiteral("device type '%1'").arg(DeviceType));
  const QString path = resolveFileName(FileName);
  if (!QFileInfo(path).isFile()) throw RuntimeFailure(Failure::FileNotFound, FileName);

  AudioOutput& output = AudioOutput::instance();
  output.open();
  auto loaded = std::make_unique<Loaded>();
  const QByteArray localPath = QFile::encodeName(path);
  if (isWave) {
    loaded->sound = Mix_LoadWAV(localPath.constData());
    if (loaded->sound == nullptr) throw RuntimeFailure(Failure::DeviceUnavailable, FileName + QStringLiteral(": ") + sdlError());
    int frequency = 0;
    Uint16 format = 0;
    int channels = 0;
    Mix_QuerySpec(&frequency, &format, &channels);
    loaded->frameBytes = static_cast<std::uint32_t>(SDL_AUDIO_BITSIZE(format) / 8 * channels);
    loaded->bytesPerSecond = std::max(1, frequency * static_cast<int>(loaded->frameBytes));
    try {
      loaded->channel = output.claimChannel(*this);
    } catch (...) {
      Mix_FreeChunk(loaded->sound);
      throw;
    }
  } else {
    loaded->isMusic = true;
    loaded->music = Mix_LoadMUS(localPath.constData());
    if (loaded->music == nullptr) throw RuntimeFailure(Failure::DeviceUnavailable, FileName + QStringLiteral(": ") + sdlError());
  }
  m_loaded = std::move(loaded);
  m_mode = kModeStopped;
}

void MediaDevice::play() {
  if (!m_loaded) throw RuntimeFailure(Failure::DeviceUnavailable, QStringLiteral("media device not open"));
  if (m_mode == kModePlaying) return;
  Loaded& loaded = *m_loaded;
  AudioOutput& output = AudioOutput::instance();

  if (loaded.isMusic) {
    switch (loaded.musicAt) {
      case Loaded::MusicAt::End: return reportDone(kNotifySuccessful);
      case Loaded::MusicAt::Paused: loaded.playNumber = output.resumeMusic(*this); break;
      case Loaded::MusicAt::Start: loaded.playNumber = output.playMusic(*this, *loaded.music); break;
    }
    loaded.musicAt = Loaded::MusicAt::Paused;
    m_mode = kModePlaying;
    return;
  }

  // A play from the end has nothing to play and is over at once.
  if (loaded.position >= loaded.sound->alen) return reportDone(kNotifySuccessful);
  if (loaded.passRunsOn) {
    // The Done handler's "prev" and "play": the pass that already sounds is this play.
    loaded.passRunsOn = false;
    m_mode = kModePlaying;
    return;
  }
  loaded.freeRest();
  loaded.looping = Looping && loaded.position == 0;
  if (loaded.looping) {
    loaded.playNumber = output.playChannel(loaded.channel, *loaded.sound, true);
    m_mode = kModePlaying;
    return;
  }
  loaded.rest = Mix_QuickLoad_RAW(loaded.sound->abuf + loaded.position, loaded.sound->alen - loaded.position);
  if (loaded.rest == nullptr) throw RuntimeFailure(Failure::DeviceUnavailable, sdlError());
  loaded.restStart = loaded.position;
  loaded.playNumber = output.playChannel(loaded.channel, *loaded.rest, false);
  m_mode = kModePlaying;
}

void MediaDevice::stop() {
  if (m_mode != kModePlaying) return;
  if (m_loaded->isMusic) {
    AudioOutput::instance().pauseMusic(*this);
    m_loaded->musicAt = Loaded::MusicAt::Paused;
  } else {
    haltWave(true);
  }
  m_mode = kModeStopped;
  reportDone(kNotifyAborted);
}

// Back to the start, which also halts a play that is running.
void MediaDevice::rewind() {
  if (!m_loaded) return;
  const bool wasPlaying = m_mode == kModePlaying;
  if (m_loaded->isMusic) {
    if (m_loaded->musicAt == Loaded::MusicAt::Paused) AudioOutput::instance().haltMusic(*this);
    m_loaded->musicAt = Loaded::MusicAt::Start;
  } else {
    haltWave(false);
    m_loaded->position = 0;
  }
  m_mode = kModeStopped;
  if (wasPlaying) reportDone(kNotifyAborted);
}

void MediaDevice::close() {
  if (!m_loaded) return;
  AudioOutput& output = AudioOutput::instance();
  if (m_loaded->isMusic) {
    output.forgetMusic(*this);
    Mix_FreeMusic(m_loaded->music);
  } else {
    output.releaseChannel(m_loaded->channel);
    m_loaded->freeRest();
    Mix_FreeChunk(m_loaded->sound);
  }
  m_loaded.reset();
  m_mode = kModeNotOpen;
}

void MediaDevice::haltWave(bool keepPosition) {
  Loaded& loaded = *m_loaded;
  if (m_mode == kModePlaying) {
    const std::uint64_t mixed = AudioOutput::instance().haltChannel(loaded.channel);
    if (keepPosition) {
      const std::uint64_t end = loaded.sound->alen;
      const auto reached = static_cast<std::uint32_t>(loaded.looping ? mixed % end : std::min(loaded.restStart + mixed, end));
      loaded.position = reached - reached % loaded.frameBytes;
    }
  }
  loaded.freeRest();
}

void MediaDevice::playEnded(unsigned playNumber) {
  if (m_mode != kModePlaying || !m_loaded || playNumber != m_loaded->playNumber) return;
  if (m_loaded->isMusic) {
    m_loaded->musicAt = Loaded::MusicAt::End;
  } else {
    m_loaded->freeRest();
    m_loaded->position = m_loaded->sound->alen;
  }
  // A looping sound's next pass is already sounding; the device stands at the end all the same.
  m_loaded->passRunsOn = m_loaded->looping;
  m_mode = kModeStopped;
  reportDone(kNotifySuccessful, m_loaded->passRunsOn);
}

void MediaDevice::endUnclaimedPass() {
  if (!m_loaded || !m_loaded->passRunsOn) return;
  AudioOutput::instance().haltChannel(m_loaded->channel);
  m_loaded->passRunsOn = false;
}

// Another device started a piece: this one's is gone, and its next play starts from the top.
void MediaDevice::musicTakenAway() {
  if (!m_loaded) return;
  const bool wasPlaying = m_mode == kModePlaying;
  m_loaded->musicAt = Loaded::MusicAt::Start;
  m_mode = kModeStopped;
  if (wasPlaying) reportDone(kNotifyAborted);
}

void MediaDevice::reportDone(int notifyCode, bool endsPass) {
  if (!Notify) {
    if (endsPass) endUnclaimedPass();
    return;
  }
  const int index = m_index;
  QMetaObject::invokeMethod(
      this,
      [this, index, notifyCode, endsPass] {
        emit Done(index, notifyCode);
        if (endsPass) endUnclaimedPass();
      },
      Qt::QueuedConnection);
}

}  // namespace fh
