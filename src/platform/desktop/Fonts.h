#pragma once

#include <QFont>

namespace fh {

// The windows are laid out for Arial. Debian has no Arial; Liberation Sans has the same metrics, so
// every text keeps the width the layout was made for.
QFont ArialFont(double points, bool bold = false);

}  // namespace fh
