#pragma once

#include <QString>

// The dialog line of the main view, under the shot.
namespace fh {

// Shows the text of a row of table Dialogs, found by name without regard to case; an empty name
// clears the line. It is not remembered as the last text.
void ShowDialog(const QString& name);

// Shows a text the program composes and remembers it as the last text; the text "last" brings that
// back, so that a passing rollover text gives way to the last lasting message.
void ShowDialogString(const QString& text);

}  // namespace fh
