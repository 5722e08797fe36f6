// The preferences, opened again and again.
#pragma once

#include "bench/report.h"
#include "bench/windows/played_meter.h"

namespace bench {

// How long they take to be shown and painted with what is stored, and what 200 openings leave.
void OpenPreferences(PlayedMeter& meter, Report& report);

}  // namespace bench
