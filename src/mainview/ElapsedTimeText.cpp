#include "mainview/ElapsedTimeText.h"

#include <cmath>

namespace fh {

QString ElapsedTimeText(float days) {
  // The time counts up in steps of a second's 32-bit fraction of a day, which is never exact:
  // round to the nearest second rather than cut, or 5:00 would show as 4:59.
  const double fraction = static_cast<double>(days) - std::floor(static_cast<double>(days));
  const long long seconds = std::llround(fraction * 86400.0) % 86400;
  return QStringLiteral("%1:%2:%3")
      .arg(seconds / 3600)
      .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
      .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace fh
