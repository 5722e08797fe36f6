// The program's own week numbering.
#pragma once

#include "platform/date_time.h"

namespace engine {

// The number of the week, weeks beginning on Monday, 1 to 53; never 1 for the last days of
// December. A time of day counts to the nearest day, so that after noon it is the next day's.
[[nodiscard]] int WeekOfYear(platform::DateTime date);

}  // namespace engine
