// What a scan costs, beside the Windows calls that it cannot do without.
#pragma once

#include "bench/report.h"
#include "bench/windows/played_meter.h"

namespace bench {

// Returns the cost of one scan in microseconds; `meter` has 4 adapters and is warm.
double CompareWithBareCalls(PlayedMeter& meter, Report& report);

// The part of a scan that shows the histogram in the notification area.
void CompareTrayUpdate(Report& report);

// Many adapters beside 4, whose scan costs `us_of_four`.
void CompareAdapters(double us_of_four, Report& report);

}  // namespace bench
