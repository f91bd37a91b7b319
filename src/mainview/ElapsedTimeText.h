#pragma once

#include <QString>

namespace fh {

// Play time, counted in days, as the clock of the main view shows it: "h:nn:ss", hours without a
// leading zero. Only the time of day is shown, so the clock starts again at 24 hours.
QString ElapsedTimeText(float days);

}  // namespace fh
