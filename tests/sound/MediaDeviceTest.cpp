#include "platform/base/Failure.h"
#include "platform/desktop/AudioOutput.h"
#include "platform/desktop/MediaDevice.h"

#include "FailureOf.h"
#include "SoundFiles.h"
#include "TempFolder.h"

#include <QThread>

#include <gtest/gtest.h>

using namespace fh;
using namespace fh::test;

namespace {

class MediaDeviceTest : public ::testing::Test {
 protected:
  MediaDeviceTest() { CloseAudioOutput(); }
  ~MediaDeviceTest() override { CloseAudioOutput(); }

  // A notifying wave device, number 3, open on a tone; what it reports is collected.
  MediaDevice& openTone(int milliseconds) {
    m_device.Notify = true;
    m_device.DeviceType = QStringLiteral("WaveAudio");
    m_device.FileName = m_folder.write(QStringLiteral("Audio/Tone.WAV"), toneWave(milliseconds));
    m_device.Command(QStringLiteral("open"));
    return m_device;
  }

  // What the disk driver wrote while `play` ran, as the root mean square of its samples.
  double heard(const std::function<void()>& play) {
    const QString output = m_folder.at(QStringLiteral("output.raw"));
    ScopedEnvironment disk("SDL_AUDIODRIVER", "disk");
    ScopedEnvironment file("SDL_DISKAUDIOFILE", output.toLocal8Bit());
    play();
    CloseAudioOutput();
    return rmsOfRawAudio(output);
  }

  ScopedEnvironment m_driver{"SDL_AUDIODRIVER", "dummy"};
  TempFolder m_folder;
  MediaDevice m_device{3};
  std::vector<int> m_reports;
  QMetaObject::Connection m_collect =
      QObject::connect(&m_device, &MediaDevice::Done, [this](int index, int) { m_reports.push_back(index); });
};

Failure failureOf(MediaDevice& device, const char* word) {
  return fh::test::failureOf([&] { device.Command(QString::fromLatin1(word)); });
}

}  // namespace

TEST_F(MediaDeviceTest, StopHoldsThePositionPlayRunsOnPrevRewindsCloseForgets) {
  EXPECT_EQ(m_device.Mode(), kModeNotOpen);
  MediaDevice& tone = openTone(1000);
  EXPECT_EQ(tone.Mode(), kModeStopped);
  tone.Command(QStringLiteral("play"));
  EXPECT_EQ(tone.Mode(), kModePlaying);
  QThread::msleep(400);
  tone.Command(QStringLiteral("stop"));
  const int held = tone.Position();
  EXPECT_GE(held, 200);
  EXPECT_LT(held, tone.Length());

  // Played from the start, it would be far behind the held position 50 ms later.
  tone.Command(QStringLiteral("play"));
  QThread::msleep(50);
  tone.Command(QStringLiteral("stop"));
  EXPECT_GE(tone.Position(), held);
  tone.Command(QStringLiteral("prev"));
  EXPECT_EQ(tone.Position(), 0);
  tone.Command(QStringLiteral("close"));
  EXPECT_EQ(tone.Mode(), kModeNotOpen);
}

TEST_F(MediaDeviceTest, EndsAreReportedAfterTheCommandAndOnlyWithNotify) {
  MediaDevice& tone = openTone(200);
  tone.Command(QStringLiteral("play"));
  tone.Command(QStringLiteral("stop"));
  tone.Command(QStringLiteral("stop"));  // ends no play
  EXPECT_TRUE(m_reports.empty());
  runEventsFor(20);
  EXPECT_EQ(m_reports, std::vector<int>{3});

  // Run out, the sound stands stopped at its end; a play from there is over at once.
  tone.Command(QStringLiteral("play"));
  ASSERT_TRUE(waitUntil([&] { return m_reports.size() == 2; }));
  EXPECT_EQ(tone.Mode(), kModeStopped);
  EXPECT_EQ(tone.Position(), tone.Length());
  tone.Command(QStringLiteral("play"));
  EXPECT_EQ(tone.Mode(), kModeStopped);
  runEventsFor(20);
  EXPECT_EQ(m_reports.size(), 3u);

  tone.Notify = false;
  tone.Command(QStringLiteral("prev"));
  tone.Command(QStringLiteral("play"));
  ASSERT_TRUE(waitUntil([&] { return tone.Mode() == kModeStopped; }));
  runEventsFor(20);
  EXPECT_EQ(m_reports.size(), 3u);
}

TEST_F(MediaDeviceTest, CommandsThatCannotWorkFailAndHarmlessOnesDont) {
  m_device.DeviceType = QStringLiteral("waveaudio");
  EXPECT_EQ(failureOf(m_device, "pause"), Failure::InvalidCall);
  EXPECT_EQ(failureOf(m_device, "play"), Failure::DeviceUnavailable);
  for (const char* word : {"stop", "prev", "close"}) EXPECT_NO_THROW(m_device.Command(QString::fromLatin1(word)));

  m_device.FileName = m_folder.at(QStringLiteral("missing.wav"));
  EXPECT_EQ(failureOf(m_device, "open"), Failure::FileNotFound);
  m_device.FileName = m_folder.write(QStringLiteral("noise.wav"), "not a wave file");
  EXPECT_EQ(failureOf(m_device, "open"), Failure::DeviceUnavailable);
  m_device.FileName = m_folder.write(QStringLiteral("Audio/Click.WAV"), toneWave(100));
  {
    ScopedEnvironment noDriver("SDL_AUDIODRIVER", "no-such-driver");
    CloseAudioOutput();
    EXPECT_EQ(failureOf(m_device, "open"), Failure::DeviceUnavailable);
  }
  m_device.DeviceType = QStringLiteral("CDAudio");
  EXPECT_EQ(failureOf(m_device, "open"), Failure::DeviceUnavailable);
  EXPECT_EQ(m_device.Mode(), kModeNotOpen);

  // With a driver again, and the name in the game's form, it opens.
  m_device.DeviceType = QStringLiteral("WaveAudio");
  m_device.FileName = m_folder.path() + QStringLiteral("\\AUDIO\\click.wav");
  m_device.Command(QStringLiteral("Open"));
  EXPECT_EQ(m_device.Mode(), kModeStopped);
}

TEST_F(MediaDeviceTest, APlayedWaveIsHeard) {
  EXPECT_GT(heard([this] {
    MediaDevice& tone = openTone(300);
    tone.Command(QStringLiteral("play"));
    ASSERT_TRUE(waitUntil([&] { return tone.Mode() == kModeStopped; }));
  }), 1000.0);
}

// The game didn't answer the end with "prev" and "play": the pass that ran on falls silent.
TEST_F(MediaDeviceTest, ALoopingWaveNobodyPlaysAgainSoundsOnce) {
  const QString output = m_folder.at(QStringLiteral("output.raw"));
  ScopedEnvironment disk("SDL_AUDIODRIVER", "disk");
  ScopedEnvironment file("SDL_DISKAUDIOFILE", output.toLocal8Bit());
  MediaDevice& tone = openTone(200);
  tone.Looping = true;
  tone.Command(QStringLiteral("play"));
  ASSERT_TRUE(waitUntil([&] { return !m_reports.empty(); }));
  EXPECT_EQ(tone.Position(), tone.Length());
  runEventsFor(400);
  CloseAudioOutput();
  EXPECT_NEAR(secondsHeard(output), 0.2, 0.05);
}

TEST_F(MediaDeviceTest, ASequencerPlaysMidiThroughTheSoundFontToItsEnd) {
  EXPECT_GT(heard([this] {
    m_device.DeviceType = QStringLiteral("Sequencer");
    m_device.FileName = m_folder.write(QStringLiteral("Audio/Piece.mid"), noteMidi(150));
    m_device.Command(QStringLiteral("open"));
    m_device.Command(QStringLiteral("play"));
    EXPECT_EQ(m_device.Mode(), kModePlaying);
    ASSERT_TRUE(waitUntil([&] { return m_device.Mode() == kModeStopped; }, 6000));
  }), 100.0);
}
