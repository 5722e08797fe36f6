// The program's own week numbering.
#pragma once

#include "platform/date_time.h"

namespace engine {

// Returns the number of the week, 1 to 53, with weeks that begin on Monday. The last days of
// December never give 1. A date with a time of day is rounded to the nearest day, so that an
// afternoon counts as the next day.
[[nodiscard]] int WeekOfYear(platform::DateTime date);

}  // namespace engine
