#pragma once

#include "platform/base/Values.h"

#include <QRect>
#include <QString>

class QPixmap;

namespace fh {

class PictureClip;
class Timer;

// What the game's logic asks of the window the game is shown in: the picture of the shot with its
// backdrop and sprites, the score, the pointer, the dialog line and the hover test's clock. The
// world and the scripts reach the window only through here; the main view implements it, and a
// test may put in a fake.
class GameView {
 public:
  virtual ~GameView() = default;

  // The hotspot that the last hover test lit, -1 for none.
  i16 CurrentHotSpotIndex = -1;

  virtual void SetScore(i16 score) = 0;
  virtual void SetBackdrop(const QString& name, bool force) = 0;
  virtual void SetCursor(i16 number) = 0;
  virtual i16 AddSprite() = 0;
  virtual void ClearSprites() = 0;
  virtual void PlayVideo(i16 x, i16 y, const QString& fileName) = 0;
  virtual void StopVideo() = 0;

  // The dialog line under the picture.
  virtual void showText(const QString& text) = 0;
  virtual QString shownText() const = 0;

  // The cel store and the frame timer of a sprite's slot (as AddSprite gave it), and the picture the
  // cels are painted on.
  virtual PictureClip& spriteCels(i16 slot) = 0;
  virtual Timer& spriteTimer(i16 slot) = 0;
  virtual void paintOnPicture(const QPixmap& cel, int x, int y) = 0;
  virtual int pictureWidth() const = 0;

  // The shot's picture as it stands, and its place on the screen, for the windows laid over it.
  virtual const QPixmap& picture() const = 0;
  virtual QRect pictureOnScreen() const = 0;

  // The hover test's clock: it is off while the world is half built.
  virtual void setGameClockRunning(bool running) = 0;

  // Edit mode, in which the shot's hotspots are drawn as named outlines over its plain backdrop.
  // modeDebug enters it and EditOff leaves it; both do nothing without a shot.
  virtual void modeDebug() = 0;
  virtual void EditOff() = 0;
  // The outlines, one for each hotspot of the current shot, and the name one of them shows. Call
  // UnSetHighlights before the number of hotspots changes, and SetHighlights after.
  virtual void SetHighlights() = 0;
  virtual void UnSetHighlights() = 0;
  virtual void setHighlightCaption(i16 index, const QString& caption) = 0;
};

// The view in use; without one, "Object variable not set".
GameView& view();
bool hasView();
// The main view puts itself in when it is made and takes itself out when it goes.
void setView(GameView* view);

}  // namespace fh
