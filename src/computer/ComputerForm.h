#pragma once

#include "game/Screens.h"

#include <QDialog>

#include <functional>

namespace fh {

class Printout;

// What the computer's three screens share: a borderless white window of 630 x 320 pixels laid
// over the shot "Computer", with no modality, that keeps itself on top. When it stops being the
// active window it lets the waiting events run three times, so that a click on the shot behind it
// acts first and may close it, and then shows itself again if it is still the open screen.
class ComputerForm : public QDialog, public ComputerScreen {
 public:
  // `number` is the screen's number in ActiveComputerScreen.
  ComputerForm(const QString& name, const QString& caption, i16 number);

  void ShowAt(QPoint place) override;

  // True while the screen prints: then it doesn't bring itself back.
  bool Printing = false;

  // What the screen does when it stops being the active window.
  void Form_Deactivate();

  // Runs a screen's printing. A printer that fails is told in a message box; the screen and what
  // the player stored stay as they are.
  void printTellingFailure(const std::function<void()>& print);

 protected:
  bool event(QEvent* event) override;
  // Escape doesn't close a screen: only the computer's own words do.
  void reject() override {}

 private:
  i16 m_number;
};

// "<what> - <player> - <today, as 2026-11-24>": the title of a printout, and the name of its file
// where it is saved rather than printed.
QString printoutTitle(const QString& what);

// Ends the document, and says on the dialog line where it was saved when it wasn't printed.
void endPrintout(Printout& page);

}  // namespace fh
