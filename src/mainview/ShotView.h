#pragma once

#include "game/View.h"
#include "platform/base/Values.h"
#include "platform/desktop/MessageHook.h"
#include "platform/desktop/PictureClip.h"
#include "platform/desktop/Timer.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QKeyEvent;
class QLabel;
class QLineEdit;
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

class ShotView : public QWidget, public GameView {
 public:
  ShotView();
  ~ShotView() override;

  // Public fields. CurrentHotSpotIndex comes with the view's surface for the logic.
  i16 nSpriteControls = 0;

  // Controls. Positions are pixels of the frame picture, from the top left corner of BackPlane.
  QLabel* BackPlane = nullptr;
  PictureBox* DisplayView = nullptr;  // the shot as the player sees it; sprites are painted on it
  QLabel* Backdrop = nullptr;         // the loaded backdrop; hidden in play, shown in edit mode
  QLabel* ElapsedTimeView = nullptr;
  QLabel* Score = nullptr;
  // Hidden text boxes, mirrors with one direction: what is written to them, Score and
  // ElapsedTimeView show.
  QLineEdit* InScore = nullptr;
  QLineEdit* InElapsedTimeView = nullptr;
  QLabel* TextWindow = nullptr;
  ImagePair* btnStereo = nullptr;
  ImagePair* btnComputer = nullptr;
  ImagePair* btnExit = nullptr;
  ImagePair* btnLeft = nullptr;
  ImagePair* btnRight = nullptr;
  QPushButton* btnSetForm = nullptr;
  QPushButton* btnShotEdit = nullptr;
  QPushButton* Save = nullptr;
  PictureBox* VideoSys = nullptr;  // set aside for films; nothing shows it
  // Edit mode's outlines, one for each hotspot of the shot; element 0 exists from the start, hidden.
  std::vector<QLabel*> Highlight;

  Timer ElapsedTime{"elapsed time"};
  Timer GameClock{"game clock"};
  Timer MeterTimer{"meter"};
  // One cell store and one frame timer per sprite slot; slot 0 exists from the start.
  std::vector<PictureClip> SpriteCels;
  std::vector<std::unique_ptr<Timer>> SpriteTimer;
  PictureClip MeterAnim;

  // The music device.
  MediaDevice& MMControl1;
  // Reports the mouse over the frame and its buttons, which DisplayView doesn't see.
  MessageHook MsgBlaster1;

  // Public operations.
  // Films are switched off: this fails at once, before it looks at anything, and the failure ends the
  // script that asked for the film. The television's callers are written for that.
  void PlayVideo(i16 x, i16 y, const QString& fileName) override;
  void StopVideo() override;
  void SetScore(i16 score) override;
  void SetCursor(i16 number) override;
  i16 AddSprite() override;
  void ClearSprites() override;
  void SetBackdrop(const QString& name, bool force) override;

  // The rest of the surface the logic draws on.
  void showText(const QString& text) override;
  QString shownText() const override;
  // A slot that AddSprite hasn't given is an Invalid procedure call.
  PictureClip& spriteCels(i16 slot) override;
  Timer& spriteTimer(i16 slot) override;
  void paintOnPicture(const QPixmap& cel, int x, int y) override;
  int pictureWidth() const override;
  const QPixmap& picture() const override;
  // DisplayView's place on the screen, which the small windows centre themselves over.
  QRect pictureOnScreen() const override;
  void setGameClockRunning(bool running) override;
  void modeDebug() override;
  void EditOff() override;
  void SetHighlights() override;
  void UnSetHighlights() override;
  void setHighlightCaption(i16 index, const QString& caption) override;
  // Edit mode: a hotspot drawn with a right press at (x, y) on empty ground.
  void AddHotSpot(i16 x, i16 y);
  void btnSetForm_Click();
  void btnShotEdit_Click();
  void Save_Click();
  // For authors: shows the three edit buttons, and lets F2 enter and leave edit mode. Without it
  // nothing of edit mode can be reached.
  void setAuthoring(bool authoring);
  bool Authoring() const { return m_authoring; }
  // The play-time tick, once a second. Every minute counted is also written to the player's row.
  void ElapsedTime_Timer();
  // The hover test, 13 times a second: lights the hotspot under the pointer and puts out the one it
  // left. It has its own silent net: a failure only forgets the lit hotspot.
  void GameClock_Timer();
  // What Exit does: ends the session, unless a computer screen is open.
  static void btnExit_Action();

  // Shows the window over everything and makes it the active one.
  void showView();

  // The picture's top left corner in the window.
  QPoint framePosition() const;
  i16 MeterFrame() const { return m_meterFrame; }
  bool WindowActivated() const { return m_windowActivated; }
  const QString& CurrentBackdrop() const { return m_currentBackdrop; }
  const QString& ShotBeforeComputer() const { return m_shotBeforeComputer; }
  bool VideoRunning() const { return m_videoRunning; }
  // The input as the game sees it: the pointer in pixels of DisplayView, and the buttons.
  i16 MouseX() const { return m_mouseX; }
  i16 MouseY() const { return m_mouseY; }
  bool LeftDown() const { return m_leftDown; }
  bool RightDown() const { return m_rightDown; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  friend ShotView& TheShotView();
  void loadWindow();
  void loadBackdrop(const QString& name);
  void meterTick();
  void spriteTick(i16 index);
  // Every mouse message of the window comes here, from DisplayView and from the window's hook, with
  // the position in pixels of DisplayView. Its own silent net ends a clicked script that fails.
  void HandleMouse(int message, i16 x, i16 y);
  void handleMouseUnguarded(int message, i16 x, i16 y);
  void MsgBlaster1_Message(int message, std::uint32_t param);
  void gameClockTick();
  void editDragStep(i16 x, i16 y);
  QLabel* newHighlight();
  void btnLeft_Action();
  void btnRight_Action();
  void btnComputer_Action();
  void btnStereo_Action();
  void VideoStatusChanged(const QString& status);

  QString m_currentBackdrop;
  QString m_shotBeforeComputer;
  i16 m_meterFrame = 0;
  bool m_windowActivated = false;
  bool m_videoRunning = false;
  i16 m_mouseX = 0;
  i16 m_mouseY = 0;
  bool m_leftDown = false;
  bool m_rightDown = false;
  // Where the pointer was at the last drag step of edit mode, or at the right press.
  i16 m_lastMouseX = 0;
  i16 m_lastMouseY = 0;
  bool m_authoring = false;
  // Seconds of play counted since the play time was last written.
  int m_countedSeconds = 0;
};

// The one main window, created (and loaded) on first use.
ShotView& TheShotView();
// Whether the main window has been created yet.
bool ShotViewExists();
// The program keeps its main window to the end; tests unload it to see its load step again.
void UnloadShotView();

}  // namespace fh
