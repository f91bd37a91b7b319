#include "platform/base/Failure.h"
#include "platform/desktop/PictureButton.h"
#include "screens/SelectMusic.h"
#include "sound/MusicDevice.h"
#include "sound/MusicPieces.h"

#include "FailureOf.h"
#include "SoundFixture.h"

#include <QLabel>

using namespace fh;
using namespace fh::test;

namespace {

// The stereo's dialog over a resource tree that holds every piece, each a short note.
class MusicDialog : public SoundFixture {
 protected:
  MusicDialog() {
    for (const MusicStyle& style : kMusicStyles)
      for (const MusicPiece& piece : style.pieces) m_folder.write(QStringLiteral("Audio/") + QLatin1String(piece.file), noteMidi(600));
  }
  ~MusicDialog() override { UnloadSelectMusic(); }

  SelectMusic& dialog = SelectMusicForm({0, 0, 632, 390});
  // The piece on the music device, and the label's text.
  static std::pair<QString, QString> playing(const SelectMusic& music) {
    return {MusicDevice().FileName.section(u'\\', -1), music.CurrentSelection->text()};
  }
  static std::pair<QString, QString> piece(const char* file, const char* label) { return {QLatin1String(file), QLatin1String(label)}; }
};

TEST_F(MusicDialog, OneCounterWalksThePiecesOfEveryStyle) {
  dialog.btnRock->click();
  EXPECT_EQ(playing(dialog), piece("ROCK1.mid", "Rock 1"));
  dialog.btnJazz->click();
  EXPECT_EQ(playing(dialog), piece("Jazz2.mid", "Jazz 2"));
  dialog.btnRock->click();
  EXPECT_EQ(playing(dialog), piece("ROCK3.mid", "Rock 3"));
  EXPECT_EQ(MusicDevice().Mode(), kModePlaying);
  for (const char* file : {"Soul1.mid", "Soul2.mid", "Soul3.mid", "Soul1.mid"}) {
    dialog.btnSoul->click();
    EXPECT_EQ(playing(dialog).first, QLatin1String(file));
  }
}

TEST_F(MusicDialog, OffStopsWithoutClosingAndClearsTheLabel) {
  dialog.btnOff->click();
  EXPECT_EQ(dialog.CurrentSelection->text(), QString());
  dialog.btnCountry->click();
  dialog.btnOff->click();
  EXPECT_EQ(MusicDevice().Mode(), kModeStopped);
  EXPECT_EQ(dialog.CurrentSelection->text(), QString());
  EXPECT_EQ(dialog.PieceIndex, 1);
  EXPECT_FALSE(SoundMgr().MidiChanging);
  EXPECT_TRUE(m_ui.messageBoxes().empty());
}

// The style is the label without its last two characters; an empty label is too short for that.
TEST_F(MusicDialog, PlayNextLikeSelectionPlaysTheLabelsStyleAtTheCounter) {
  dialog.CurrentSelection->setText(QStringLiteral("Classical 2"));
  dialog.PieceIndex = 2;
  dialog.PlayNextLikeSelection();
  EXPECT_EQ(playing(dialog), piece("Classical3.mid", "Classical 3"));
  EXPECT_EQ(dialog.PieceIndex, 0);
  dialog.CurrentSelection->clear();
  EXPECT_EQ(failureOf([this] { dialog.PlayNextLikeSelection(); }), Failure::InvalidCall);
}

}  // namespace
