#pragma once

#include "platform/Values.h"

class QWidget;

namespace fh {

// A screen of the in-game computer: a borderless window laid over the shot "Computer". The window
// stays loaded once made, and each Init fills it anew.
class ComputerScreen {
 public:
  virtual ~ComputerScreen() = default;

  virtual QWidget& window() = 0;
  // Fills the screen and makes it the open one: sets ActiveComputerScreen to its number.
  virtual void Init() = 0;
  // Hides the screen; it keeps what it holds until the next Init.
  virtual void Shutdown() = 0;
  // What `computer print` does while this screen is open; each screen has its own way.
  virtual void Print() = 0;
};

// The screen of this number in ActiveComputerScreen (1 How Am I Doing, 3 Clean Air, 4 Home Checkup),
// made on first use; none for any other number.
ComputerScreen* ComputerScreenFor(i16 number);

}  // namespace fh
