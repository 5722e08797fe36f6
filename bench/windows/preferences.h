// The preferences, opened again and again.
#pragma once

#include "bench/report.h"
#include "bench/windows/played_meter.h"

namespace bench {

// Reports the milliseconds until they are painted with what is stored, beside what the system takes
// for as many empty controls. `meter` has no preferences open.
void OpenPreferences(PlayedMeter& meter, Report& report);

}  // namespace bench
