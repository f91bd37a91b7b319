#pragma once

#include "platform/base/Values.h"
#include "platform/desktop/PictureForm.h"

class QLabel;

namespace fh {

class PictureButton;

// The stereo's dialog: five styles of three pieces each, and Off. One counter walks the pieces for
// all the styles together, so Rock, Jazz, Rock plays Rock 1, Jazz 2 and Rock 3. The dialog is only
// hidden when closed, and keeps the counter and the label of the piece until the session ends.
class SelectMusic final : public PictureForm {
 public:
  explicit SelectMusic(const QRect& view);

  PictureButton* btnRock;
  PictureButton* btnJazz;
  PictureButton* btnClassical;
  PictureButton* btnSoul;
  PictureButton* btnCountry;
  PictureButton* btnOff;
  PictureButton* btnOK;
  QLabel* CurrentSelection;

  // Which of its three pieces the next click on a style plays, counted from 0.
  i16 PieceIndex = 0;

  // Plays the next piece of the style the label names. With nothing playing the label is too
  // short for a style, and that fails.
  void PlayNextLikeSelection();
  // The click on the style's button: 0 Rock, 1 Jazz, 2 Classical, 3 Soul, 4 Country.
  void playStyle(int style);
  // Stops the music without closing the device; the counter stays where it is.
  void btnOff_Click();
  void btnOK_Click() { hide(); }
};

// The dialog, made on first use and placed then over `view`, the shot's picture on the screen, 40
// pixels up and left of its centre.
SelectMusic& SelectMusicForm(const QRect& view);
// Ends the dialog, as the end of a session does: the next one starts at the first pieces again.
// The music isn't stopped by it.
void UnloadSelectMusic();

}  // namespace fh
