#include "platform/base/Failure.h"
#include "platform/desktop/CdPrompt.h"
#include "sound/MusicDevice.h"

#include "SoundFixture.h"

using namespace fh;
using namespace fh::test;

namespace {

using SoundManager = SoundFixture;

const QString kDisabledText = QStringLiteral(
    "Sound system is being used by another application or is not present.  Digital sounds will be disabled for this session.");

}  // namespace

TEST_F(SoundManager, TheTwentyFirstLoadIsRefusedWithAMessage) {
  m_folder.write(QStringLiteral("Audio/tick.wav"), toneWave(50));
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(SoundMgr().LoadSound(QStringLiteral("tick.wav"), QStringLiteral("Tick%1").arg(i)));
  EXPECT_FALSE(SoundMgr().LoadSound(QStringLiteral("tick.wav"), QStringLiteral("Tick20")));
  EXPECT_EQ(SoundMgr().NumSounds(), 20);
  ASSERT_EQ(m_ui.messageBoxes().size(), 1u);
  EXPECT_EQ(m_ui.messageBoxes().front().text, QStringLiteral("Maximum number of sounds reached."));
}

TEST_F(SoundManager, NamesMatchWithoutRegardToCaseAndUnknownOnesChangeNothing) {
  load(QStringLiteral("Door.WAV"), QStringLiteral("DoorCreak"), 1000);
  EXPECT_TRUE(SoundMgr().PlayLocal(QStringLiteral("doorcreak"), 0, false));
  EXPECT_FALSE(SoundMgr().PlayLocal(QStringLiteral("Doorbell"), 2000, false));
  SoundMgr().StopLocal(QStringLiteral("Doorbell"));
  EXPECT_EQ(device(0).Mode(), kModePlaying);
  EXPECT_TRUE(m_ui.messageBoxes().empty());
}

TEST_F(SoundManager, WhileDisabledNothingLoadsOrPlaysAndEnableBringsTheSoundsBack) {
  load(QStringLiteral("beep.wav"), QStringLiteral("Beep"), 100);
  SoundMgr().Disable();
  EXPECT_FALSE(SoundMgr().LoadSound(QStringLiteral("beep.wav"), QStringLiteral("Other")));
  EXPECT_FALSE(SoundMgr().PlayLocal(QStringLiteral("Beep"), 0, false));
  EXPECT_TRUE(m_ui.messageBoxes().empty());
  SoundMgr().Enable();
  EXPECT_TRUE(SoundMgr().PlayLocal(QStringLiteral("Beep"), 0, false));
  EXPECT_EQ(device(0).Mode(), kModePlaying);
}

TEST_F(SoundManager, WithoutAnAudioDeviceThePlayerIsToldOnce) {
  m_folder.write(QStringLiteral("Audio/a.wav"), toneWave(50));
  {
    ScopedEnvironment noDriver("SDL_AUDIODRIVER", "no-such-driver");
    for (const char* name : {"A", "B", "C"}) EXPECT_FALSE(SoundMgr().LoadSound(QStringLiteral("a.wav"), QString::fromLatin1(name)));
  }
  EXPECT_FALSE(SoundMgr().DigitalEnabled);
  EXPECT_EQ(SoundMgr().NumSounds(), 0);
  ASSERT_EQ(m_ui.messageBoxes().size(), 1u);
  EXPECT_EQ(m_ui.messageBoxes().front().text, kDisabledText);
}

TEST_F(SoundManager, UnloadSoundsLeavesTheLoadedDevicesOpenForTheNextLoad) {
  load(QStringLiteral("a.wav"), QStringLiteral("A"), 100);
  load(QStringLiteral("b.wav"), QStringLiteral("B"), 100);
  SoundMgr().UnloadSounds();
  EXPECT_EQ(SoundMgr().NumSounds(), 0);
  EXPECT_EQ(device(1).Mode(), kModeStopped);
  SoundMgr().Init();
  load(QStringLiteral("c.wav"), QStringLiteral("C"), 100);
  EXPECT_FALSE(SoundMgr().PlayLocal(QStringLiteral("B"), 0, false));
  EXPECT_TRUE(SoundMgr().PlayLocal(QStringLiteral("c"), 0, false));
}

// The manager stands before Init with the stereo's base at 1. When the program ends, its last act
// unloads the sounds and closes the music.
TEST_F(SoundManager, ItStartsWithPanBaseOneAndItsLastActSilencesEverything) {
  EXPECT_EQ(cSoundMgr().PanBase, 1);
  m_ui.queueAnswer(Answer::Cancel);  // an unexpected CD prompt ends the test instead of asking forever
  load(QStringLiteral("a.wav"), QStringLiteral("A"), 100);
  m_folder.write(QStringLiteral("Audio/ROCK1.mid"), noteMidi(600));
  SoundMgr().PlayMidi(QStringLiteral("ROCK1.mid"));
  runProgramEndActs();
  EXPECT_EQ(SoundMgr().NumSounds(), 0);
  EXPECT_FALSE(SoundMgr().DigitalEnabled);
  EXPECT_EQ(MusicDevice().Mode(), kModeNotOpen);
}

TEST_F(SoundManager, PlayMidiOpensThePieceAgainAfterDisableClosedIt) {
  m_ui.queueAnswer(Answer::Cancel);  // an unexpected CD prompt ends the test instead of asking forever
  m_folder.write(QStringLiteral("Audio/ROCK1.mid"), noteMidi(600));
  SoundMgr().PlayMidi(QStringLiteral("rock1.MID"));
  EXPECT_EQ(MusicDevice().Mode(), kModePlaying);
  EXPECT_EQ(m_ui.yields(), 2);
  SoundMgr().Disable();
  EXPECT_EQ(MusicDevice().Mode(), kModeNotOpen);
  SoundMgr().PlayMidi(QStringLiteral("ROCK1.mid"));
  EXPECT_EQ(MusicDevice().Mode(), kModePlaying);
  EXPECT_FALSE(SoundMgr().MidiChanging);
}

// OK runs the failing open again; Cancel ends the program.
TEST_F(SoundManager, AMissingPieceAsksForTheCdUntilCancel) {
  m_ui.queueAnswer(Answer::Ok);
  m_ui.queueAnswer(Answer::Cancel);
  EXPECT_THROW(SoundMgr().PlayMidi(QStringLiteral("Jazz1.mid")), ProgramEnded);
  const auto boxes = m_ui.messageBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes.back().text, kInsertCdText);
  EXPECT_EQ(boxes.back().buttons, Buttons::OkCancel);
  EXPECT_EQ(boxes.back().details, QStringLiteral("Missing file: ") + ResourcePath + QStringLiteral("Audio\\Jazz1.mid"));
}

// Sounds and pieces that lie outside the audio folder are never opened: they are missing files,
// with all that follows from one.
TEST_F(SoundManager, NamesOutsideTheAudioFolderAreMissingFiles) {
  m_folder.write(QStringLiteral("outside.wav"), toneWave(50));
  m_folder.write(QStringLiteral("outside.mid"), noteMidi(100));
  ResourcePath = m_folder.path() + QStringLiteral("/tree\\");
  m_folder.makeFolder(QStringLiteral("tree/Audio"));

  EXPECT_FALSE(SoundMgr().LoadSound(QStringLiteral("..\\..\\outside.wav"), QStringLiteral("Outside")));
  ASSERT_EQ(m_ui.messageBoxes().size(), 1u);
  EXPECT_EQ(m_ui.messageBoxes().back().text, kDisabledText);

  m_ui.queueAnswer(Answer::Cancel);
  EXPECT_THROW(SoundMgr().PlayMidi(QStringLiteral("../../outside.mid")), ProgramEnded);
  ASSERT_EQ(m_ui.messageBoxes().size(), 2u);
  EXPECT_EQ(m_ui.messageBoxes().back().details, QStringLiteral("Missing file: ") + ResourcePath + QStringLiteral("Audio\\../../outside.mid"));
}
