#pragma once

#include "platform/base/Values.h"

#include <QString>

namespace fh {

class PictureClip;
class Timer;

// A small animation on a shot: a strip of NumFrames cels drawn in turn at (X, Y) on the main view,
// stepped by a frame timer of its own, perhaps with a looped sound. The main view holds the strip's
// cel store and the timer, at SpriteIndex.
class cSprite {
 public:
  QString Name;
  QString Shot;  // the shot it lives on
  i16 NumFrames = 0;
  i16 X = 0;
  i16 Y = 0;
  i16 FrameDelay = 0;  // milliseconds between frames
  bool Loop = false;
  bool Backwards = false;
  i16 SpriteIndex = 0;  // into the main view's SpriteCels and SpriteTimer
  i16 FrameStep = 0;    // 1 or -1 while running, 0 while halted

  // Installs a strip and the sound that goes with it. The same strip again changes nothing, not even
  // the sound. A strip that can't be loaded asks for the CD until it loads or the player gives up.
  void SetCels(const QString& celSource, const QString& sound);
  // Starts the animation from its start cel, with its sound looped and placed by where it stands.
  void Go();
  void Halt();
  // Stops the animation; the last cel stays painted until the backdrop is painted again.
  void Hide();
  // Draws the current cel; a looping sprite also starts.
  void Refresh();
  void Render();
  void SetFrame(i16 frame);
  // One tick of the frame timer.
  void NextFrame();
  // Puts the current cel at the start of a run when running, at its end when halted.
  void Rewind();

  // The sound's place in the stereo field: 5000 at the left edge of the view, -5000 at its right.
  i16 SoundPan() const;

  const QString& CelSource() const { return m_celSource; }
  const QString& Sound() const { return m_sound; }
  i16 CurrentFrame() const { return m_currentFrame; }

 private:
  PictureClip& cels() const;
  Timer& timer() const;

  QString m_celSource;
  QString m_sound;
  i16 m_currentFrame = 0;
};

}  // namespace fh
