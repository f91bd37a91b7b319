#pragma once

#include "platform/base/Values.h"
#include "platform/desktop/MessageHook.h"
#include "platform/desktop/Timer.h"

#include <QPixmap>
#include <QRandomGenerator>
#include <QWidget>

class QLabel;

namespace fh {

// The idle screen: the whole display in black, the eleven slides in turn at random places and a
// line of text that wanders, until the player moves the mouse more than a little or touches a key
// or a mouse button. The pointer is invisible over it. It shares nothing with the game but ResourcePath, and
// nothing in the game opens it: whoever wants it only shows it, and the form does the rest.
class ScreenSaver final : public QWidget {
 public:
  ScreenSaver();

  Timer Timer1{"screen saver"};
  MessageHook MsgBlaster1;
  QLabel* Image1;
  QLabel* Label1;
  // The custom pointer's picture: 32 x 32 and fully transparent.
  QPixmap MouseIcon;

  // The slide on show, 1 to 11; 0 before the first.
  i16 SlideIndex = 0;
  // Mouse moves reported since the form came up.
  i16 MouseMoves = 0;

  // Starts the show afresh: a new seed, the counters at 0, the first slide.
  void Form_Activate();
  // The next slide in order, at a random place where it lies wholly on the form.
  void ShowSlide();
  void Timer1_Timer();
  // Five mouse moves are forgiven; the sixth, and any other message of the player, hide the form.
  void MsgBlaster1_Message(int number);

  int MousePointer() const { return m_mousePointer; }
  void setMousePointer(int number);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  // A random number in [0, 1).
  double Rnd() { return m_random.generateDouble(); }
  // A random place along `room` pixels: 0 when there is no room.
  int randomPlace(int room) { return static_cast<int>(room * Rnd()); }

  QRandomGenerator m_random;
  int m_mousePointer = 0;
};

// The one screen saver, made on first use. It stays loaded, and its timer runs, once made.
ScreenSaver& ScreenSaverForm();
// Brings the screen saver up over everything, with the keyboard. Nothing in the game calls it.
void ShowScreenSaver();

}  // namespace fh
