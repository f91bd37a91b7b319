#pragma once

#include "platform/PictureClip.h"
#include "platform/Timer.h"
#include "platform/Values.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace fh {

class ImagePair;
class MediaDevice;
class PictureBox;

// The one main window of the game: black over the whole screen, with the 640 x 480 frame in its
// middle and the view of the current shot in the frame. Created on first use by TheShotView(); its
// load step places everything and starts the meter.
class ShotView;
ShotView& TheShotView();

class ShotView : public QWidget {
 public:
  ShotView();
  ~ShotView() override;

  // Public fields.
  i16 nSpriteControls = 0;
  i16 CurrentHotSpotIndex = -1;

  // Controls. Positions are pixels of the frame picture, from the top left corner of BackPlane.
  QLabel* BackPlane = nullptr;
  PictureBox* DisplayView = nullptr;  // the shot as the player sees it; sprites are painted on it
  QLabel* Backdrop = nullptr;         // the loaded backdrop; hidden in play, shown in edit mode
  QLabel* ElapsedTimeView = nullptr;
  QLabel* Score = nullptr;
  QLabel* TextWindow = nullptr;
  ImagePair* btnStereo = nullptr;
  ImagePair* btnComputer = nullptr;
  ImagePair* btnExit = nullptr;
  ImagePair* btnLeft = nullptr;
  ImagePair* btnRight = nullptr;
  QPushButton* btnSetForm = nullptr;
  QPushButton* btnShotEdit = nullptr;
  QPushButton* Save = nullptr;

  Timer ElapsedTime{"elapsed time"};
  Timer GameClock{"game clock"};
  Timer MeterTimer{"meter"};
  // One cell store and one frame timer per sprite slot; slot 0 exists from the start.
  std::vector<PictureClip> SpriteCels;
  std::vector<std::unique_ptr<Timer>> SpriteTimer;
  PictureClip MeterAnim;

  // The music device.
  MediaDevice& MMControl1;

  // Public operations.
  void StopVideo();
  void SetScore(i16 score);
  void SetCursor(i16 number);
  i16 AddSprite();
  void ClearSprites();
  void SetBackdrop(const QString& name, bool force);
  void ElapsedTime_Timer();
  // What Exit does: ends the session, unless a computer screen is open.
  static void btnExit_Action();

  // Shows the window over everything and makes it the active one.
  void showView();

  // The picture's top left corner in the window.
  QPoint framePosition() const;
  i16 MeterFrame() const { return m_meterFrame; }
  bool WindowActivated() const { return m_windowActivated; }
  const QString& CurrentBackdrop() const { return m_currentBackdrop; }

 protected:
  bool event(QEvent* event) override;

 private:
  friend ShotView& TheShotView();
  void loadWindow();
  void loadBackdrop(const QString& name);
  void meterTick();
  void spriteTick(i16 index);

  QString m_currentBackdrop;
  QString m_shotBeforeComputer;
  i16 m_meterFrame = 0;
  bool m_windowActivated = false;
  bool m_videoRunning = false;
  // Where the meter's cells are painted over the frame; hidden until the first tick paints one.
  QLabel* m_meterView = nullptr;
};

// The one main window, created (and loaded) on first use.
ShotView& TheShotView();
// Whether the main window has been created yet.
bool ShotViewExists();
// The program keeps its main window to the end; tests unload it to see its load step again.
void UnloadShotView();

}  // namespace fh
