#pragma once

#include <QString>

// The modal screens a script opens: the line that opens one waits until it has closed, and the shot
// is then drawn anew, backdrop and all, since the screen may have changed what stands in the house.
namespace fh {

// The info box of this name, from table InfoBoxes.
void ShowInfoBox(const QString& name);

// The object selection of this container.
void ShowContainer(const QString& name);

}  // namespace fh
