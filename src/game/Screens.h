#pragma once

#include "platform/base/Values.h"

#include <QPoint>

#include <functional>

class QPixmap;
class QRect;
class QString;
class QWidget;

// The windows that the logic opens but doesn't know: the modal screens of a script, the computer's
// screens, the setup of the resource folder, and the end of a session. The layers above lend them
// at the program's start (and tests lend what they need), so that nothing below depends on them.
namespace fh {

// A modal screen that a script opens over the view: the info box, or the object selection of a
// container. The script fills it, shows it modally and refreshes the shot once it has closed.
class ChoiceScreen {
 public:
  virtual ~ChoiceScreen() = default;

  virtual QWidget& form() = 0;
  // Starts the screen anew for the info box or container of this name.
  virtual void Init(const QString& name) = 0;
  // Takes the picture of the view it lies on as its palette, so that on a display of 256 colours
  // the screen shows in the view's colours.
  virtual void TakePalette(const QPixmap& picture) = 0;
};

// A screen of the in-game computer: a borderless window laid over the shot "Computer". The window
// stays loaded once made, and each Init fills it anew.
class ComputerScreen {
 public:
  virtual ~ComputerScreen() = default;

  // Shows the window with its top left corner at this place on the screen, in front, with the keyboard.
  virtual void ShowAt(QPoint place) = 0;
  // Fills the screen and makes it the open one: sets ActiveComputerScreen to its number.
  virtual void Init() = 0;
  // Hides the screen; it keeps what it holds until the next Init.
  virtual void Shutdown() = 0;
  // What `computer print` does while this screen is open; each screen has its own way.
  virtual void Print() = 0;
};

struct Screens {
  // The info box and the object selection, made on first use and centred then over `view`, the
  // shot's picture on the screen.
  std::function<ChoiceScreen&(const QRect& view)> infoBox;
  std::function<ChoiceScreen&(const QRect& view)> selectObject;
  // The computer's screen of this number in ActiveComputerScreen (1 How Am I Doing, 3 Clean Air,
  // 4 Home Checkup), made on first use; none for any other number.
  std::function<ComputerScreen*(i16 number)> computer;
  // The stereo's music dialog, shown modally over `view` with `picture` as its palette.
  std::function<void(const QRect& view, const QPixmap& picture)> music;
  // The dialog that names the folder of the pictures and sounds, shown modally.
  std::function<void()> setup;
  // What Exit does: the session ends and the opening screen comes back.
  std::function<void()> endGame;
  // The authoring dialogs, shown modally: the hotspot at CurrentHotSpotIndex of the shown shot, the
  // set with its shots, and the shown shot.
  std::function<void()> hotSpotDialog;
  std::function<void()> setDialog;
  std::function<void()> shotDialog;
};

// Where the upper layers lend their windows.
Screens& screens();

// The hooks as the logic calls them. One that hasn't been lent is "Object variable not set".
ChoiceScreen& InfoBoxScreen(const QRect& view);
ChoiceScreen& SelectObjectScreen(const QRect& view);
ComputerScreen* ComputerScreenFor(i16 number);
void ShowMusicDialog(const QRect& view, const QPixmap& picture);
void ShowSetup();
void EndSession();
void ShowHotSpotDialog();
void ShowSetDialog();
void ShowShotDialog();

}  // namespace fh
