// Every window of the program, opened again and again.
#pragma once

#include "bench/report.h"
#include "bench/windows/played_meter.h"

namespace bench {

// Reports what 300 openings of each window leave, beside what the system leaves of as many empty
// windows of the same kinds. `meter` has no window open.
void OpenEveryWindow(PlayedMeter& meter, Report& report);

}  // namespace bench
