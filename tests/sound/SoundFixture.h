#pragma once

#include "game/GameState.h"
#include "platform/desktop/AudioOutput.h"
#include "sound/SoundControls.h"
#include "sound/cSoundMgr.h"

#include "ScriptedUi.h"
#include "SoundFiles.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

namespace fh::test {

// The global sound manager, enabled, over a resource tree of its own. Music takes the small General
// MIDI bank: the full one takes a while to load, and these tests only ask whether a piece opens.
class SoundFixture : public ::testing::Test {
 protected:
  SoundFixture() {
    CloseAudioOutput();
    ResourcePath = m_folder.path() + QStringLiteral("\\");
    m_folder.makeFolder(QStringLiteral("Audio"));
    SoundMgr().Init();
  }

  ~SoundFixture() override {
    SoundMgr().UnloadSounds();
    CloseAudioOutput();
    soundControls().CurrentSound = 0;
    ResourcePath.clear();
  }

  void load(const QString& file, const QString& name, int milliseconds) {
    m_folder.write(QStringLiteral("Audio/") + file, toneWave(milliseconds));
    ASSERT_TRUE(SoundMgr().LoadSound(file, name));
  }

  static MediaDevice& device(int index) { return soundControls().MMControl1(index); }

  ScopedEnvironment m_driver{"SDL_AUDIODRIVER", "dummy"};
  ScopedEnvironment m_soundFont{"SDL_SOUNDFONTS", "/usr/share/sounds/sf2/TimGM6mb.sf2"};
  ScopedEnvironment m_forceSoundFont{"SDL_FORCE_SOUNDFONTS", "1"};
  ScriptedUi m_ui;
  TempFolder m_folder;
};

}  // namespace fh::test
