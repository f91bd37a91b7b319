#pragma once

#include <QFont>

namespace fh {

// The windows are laid out for Arial. Debian has no Arial; Liberation Sans has the same metrics, so
// every text keeps the width the layout was made for.
QFont ArialFont(double points, bool bold = false);
// Times New Roman, in Liberation Serif, which has its metrics.
QFont TimesFont(double points, bool bold = false);
// Bookman Old Style, in URW's Bookman where it is installed; no free font has its metrics.
QFont BookmanFont(double points, bool bold = false);

}  // namespace fh
