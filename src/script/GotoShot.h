#pragma once

#include <QString>

namespace fh {

// Shows every shot of the current set whose lower-cased name is `name`, in order, so that of two
// shots of one name the last stands. An unknown name does nothing.
void GotoShot(const QString& name);

}  // namespace fh
