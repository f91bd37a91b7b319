#include "SoundFixture.h"

#include <QThread>

using namespace fh;
using namespace fh::test;

namespace {

class SoundChannel : public SoundFixture {
 protected:
  SoundChannel() {
    load(QStringLiteral("hum.wav"), QStringLiteral("Hum"), 200);
    load(QStringLiteral("speech.wav"), QStringLiteral("Speech"), 1000);
    load(QStringLiteral("beep.wav"), QStringLiteral("Beep"), 150);
    // A free channel, as after any StopSound.
    soundControls().CurrentSound = -1;
  }
  static constexpr i16 kHum = 0;
  static constexpr i16 kSpeech = 1;
  static constexpr i16 kBeep = 2;
};

bool rewound(const MediaDevice& device) { return device.Mode() == kModeStopped && device.Position() == 0; }

}  // namespace

TEST_F(SoundChannel, ALoopHoldsTheChannelAndRestartsAtEachEndUntilStopped) {
  int ends = 0;
  QObject::connect(&device(kHum), &MediaDevice::Done, [&] { ++ends; });
  SoundMgr().PlayLocal(QStringLiteral("Hum"), 0, true);
  EXPECT_TRUE(SoundMgr().PlayLocal(QStringLiteral("Beep"), 0, false));
  EXPECT_EQ(device(kBeep).Mode(), kModeStopped);

  ASSERT_TRUE(waitUntil([&] { return ends >= 2; }));
  EXPECT_EQ(device(kHum).Mode(), kModePlaying);
  EXPECT_EQ(soundControls().CurrentSound, kHum);

  SoundMgr().StopLocal(QStringLiteral("hum"));
  runEventsFor(300);
  EXPECT_TRUE(rewound(device(kHum)));
  EXPECT_EQ(soundControls().CurrentSound, -1);
}

TEST_F(SoundChannel, AShortSoundCutOffByAnotherIsRewound) {
  SoundMgr().PlayLocal(QStringLiteral("Speech"), 0, false);
  QThread::msleep(200);
  SoundMgr().PlayLocal(QStringLiteral("Beep"), 0, false);
  EXPECT_EQ(device(kBeep).Mode(), kModePlaying);
  EXPECT_GT(device(kSpeech).Position(), 0);
  ASSERT_TRUE(waitUntil([&] { return rewound(device(kSpeech)); }));

  // The beep, once over, is rewound too, and keeps the channel.
  ASSERT_TRUE(waitUntil([&] { return rewound(device(kBeep)); }));
  EXPECT_EQ(soundControls().CurrentSound, kBeep);
}

// The "stop" before the second play is reported when the sound already plays again: the report
// finds it playing and leaves it alone.
TEST_F(SoundChannel, TheSameSoundTwiceInARowRunsOnFromWhereItWas) {
  SoundMgr().PlayLocal(QStringLiteral("Speech"), 0, false);
  QThread::msleep(300);
  SoundMgr().PlayLocal(QStringLiteral("Speech"), 0, false);
  const int cutAt = device(kSpeech).Position();
  EXPECT_GE(cutAt, 150);
  runEventsFor(50);
  device(kSpeech).Command(QStringLiteral("stop"));
  EXPECT_GE(device(kSpeech).Position(), cutAt);
}

TEST_F(SoundChannel, StoppingAnotherSoundLeavesTheLoopWithoutAnOwner) {
  SoundMgr().PlayLocal(QStringLiteral("Hum"), 0, true);
  SoundMgr().StopLocal(QStringLiteral("Beep"));
  EXPECT_EQ(soundControls().CurrentSound, -1);
  EXPECT_EQ(device(kHum).Mode(), kModePlaying);

  // It plays out, is rewound, and doesn't start again.
  ASSERT_TRUE(waitUntil([&] { return rewound(device(kHum)); }));
  runEventsFor(100);
  EXPECT_TRUE(rewound(device(kHum)));
}

// At the start the channel says sound 0, so the first play stops device 0.
TEST_F(SoundChannel, TheFirstPlayStopsDeviceZero) {
  soundControls().CurrentSound = 0;
  SoundMgr().PlayLocal(QStringLiteral("Hum"), 0, false);
  SoundMgr().PlayLocal(QStringLiteral("Beep"), 0, false);
  EXPECT_EQ(device(kHum).Mode(), kModeStopped);
  EXPECT_EQ(device(kBeep).Mode(), kModePlaying);
}

namespace {

// The disk driver writes a 1024-frame buffer every 5 ms instead of every 23: twenty seconds of sound
// take under five.
class SoundLoop : public SoundFixture {
 protected:
  QString m_output = m_folder.at(QStringLiteral("loop.raw"));
  ScopedEnvironment m_disk{"SDL_AUDIODRIVER", "disk"};
  ScopedEnvironment m_file{"SDL_DISKAUDIOFILE", m_output.toLocal8Bit()};
  ScopedEnvironment m_pace{"SDL_DISKAUDIODELAY", "5"};
};

}  // namespace

// Each end of a looped sound is still told to the game, but the sound itself never pauses.
TEST_F(SoundLoop, ALoopedSoundRunsOnWithoutAGapForTwentySeconds) {
  load(QStringLiteral("tone.wav"), QStringLiteral("Tone"), 300);
  soundControls().CurrentSound = -1;
  int ends = 0;
  QObject::connect(&device(0), &MediaDevice::Done, [&] { ++ends; });
  const double before = secondsOfRawAudio(m_output);
  SoundMgr().PlayLocal(QStringLiteral("Tone"), 0, true);
  ASSERT_TRUE(waitUntil([&] { return secondsOfRawAudio(m_output) > before + 20; }, 15000));
  EXPECT_EQ(device(0).Mode(), kModePlaying);
  SoundMgr().StopLocal(QStringLiteral("Tone"));
  CloseAudioOutput();

  EXPECT_LT(longestSilenceInside(m_output), 2.0);
  EXPECT_GE(ends, 60);
}
