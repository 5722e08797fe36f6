// Many scans one behind the other, and what is left of them.
#pragma once

#include <cstdint>

#include "bench/report.h"
#include "bench/windows/played_meter.h"

namespace bench {

struct LongRun {
  int scans = 0;
  double longest_seconds = 0;  // less when these are over
};

// Scans without the time between them; what the first hour's worth leaves is what the rest must not
// add to.
void PlayLongRun(PlayedMeter& meter, const LongRun& run, std::int64_t empty_bytes, Report& report);

}  // namespace bench
