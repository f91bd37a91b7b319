#include "screens/SelectMusic.h"

#include "game/GameState.h"
#include "platform/base/Failure.h"
#include "platform/base/Guard.h"
#include "platform/desktop/Fonts.h"
#include "platform/desktop/PictureButton.h"
#include "sound/MusicDevice.h"
#include "sound/MusicPieces.h"
#include "sound/cSoundMgr.h"

#include <QLabel>

#include <memory>

namespace fh {

namespace {

constexpr int kShiftUpAndLeft = 40;

std::unique_ptr<SelectMusic>& theDialog() {
  static std::unique_ptr<SelectMusic> dialog;
  return dialog;
}

}  // namespace

SelectMusic::SelectMusic(const QRect& view) : PictureForm(QStringLiteral("SelectMusic"), QStringLiteral("Music"), QStringLiteral("MusicBack")) {
  const auto styleButton = [this](int style, QPoint place) {
    const QString name = QString::fromLatin1(kMusicStyles[static_cast<std::size_t>(style)].name);
    PictureButton* button = WindowArtButton(this, QStringLiteral("btn") + name, QStringLiteral("Play ") + name,
                                            QStringLiteral("Music") + name, place);
    connect(button, &QPushButton::clicked, this, [this, style] { guarded("SelectMusic style", [this, style] { playStyle(style); }); });
    return button;
  };
  btnRock = styleButton(0, {18, 136});
  btnJazz = styleButton(1, {18, 168});
  btnClassical = styleButton(2, {18, 201});
  btnSoul = styleButton(3, {139, 135});
  btnCountry = styleButton(4, {139, 168});
  btnOff = WindowArtButton(this, QStringLiteral("btnOff"), QStringLiteral("Turn Off Music"), QStringLiteral("MusicOff"), {139, 202});
  connect(btnOff, &QPushButton::clicked, this, [this] { guarded("SelectMusic Off", [this] { btnOff_Click(); }); });
  btnOK = WindowArtButton(this, QStringLiteral("btnOK"), QStringLiteral("Close Music Select"), QStringLiteral("Ok"), {259, 168});
  connect(btnOK, &QPushButton::clicked, this, [this] { guarded("SelectMusic OK", [this] { btnOK_Click(); }); });

  CurrentSelection = new QLabel(this);
  CurrentSelection->setObjectName(QStringLiteral("CurrentSelection"));
  CurrentSelection->setGeometry(222, 103, 87, 19);
  CurrentSelection->setAlignment(Qt::AlignCenter);
  CurrentSelection->setFont(ArialFont(11.25, true));

  centreOver(view, kShiftUpAndLeft);
}

void SelectMusic::playStyle(int style) {
  const MusicPiece& piece = kMusicStyles[static_cast<std::size_t>(style)].pieces[static_cast<std::size_t>(PieceIndex)];
  SoundMgr().PlayMidi(QString::fromLatin1(piece.file));
  CurrentSelection->setText(QString::fromLatin1(piece.label));
  ++PieceIndex;
  if (PieceIndex == 3) PieceIndex = 0;
}

void SelectMusic::PlayNextLikeSelection() {
  const QString label = CurrentSelection->text();
  if (label.size() < 2) throw RuntimeFailure(Failure::InvalidCall, QStringLiteral("Left(\"%1\", %2)").arg(label).arg(label.size() - 2));
  const QString style = label.left(label.size() - 2);
  for (std::size_t i = 0; i < kMusicStyles.size(); ++i) {
    if (style == QLatin1String(kMusicStyles[i].name)) {
      playStyle(static_cast<int>(i));
      return;
    }
  }
}

void SelectMusic::btnOff_Click() {
  SoundMgr().MidiChanging = true;
  MusicDevice().Command(QStringLiteral("stop"));
  SoundMgr().MidiChanging = false;
  CurrentSelection->clear();
}

SelectMusic& SelectMusicForm(const QRect& view) {
  std::unique_ptr<SelectMusic>& dialog = theDialog();
  if (!dialog) dialog = std::make_unique<SelectMusic>(view);
  return *dialog;
}

void UnloadSelectMusic() { theDialog().reset(); }

}  // namespace fh
