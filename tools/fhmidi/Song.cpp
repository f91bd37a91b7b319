#include "Song.h"

namespace fh::fhmidi {

double secondsAt(const std::vector<TempoChange>& tempos, qint64 tick) {
  double seconds = 0;
  qint64 from = 0;
  double rate = 120;
  for (const TempoChange& change : tempos) {
    if (change.tick >= tick) break;
    seconds += double(change.tick - from) / kTicksPerQuarter * 60.0 / rate;
    from = change.tick;
    rate = change.quartersPerMinute;
  }
  return seconds + double(tick - from) / kTicksPerQuarter * 60.0 / rate;
}

}  // namespace fh::fhmidi
