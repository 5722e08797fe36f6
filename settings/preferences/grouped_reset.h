// Puts stored options back to their defaults, group by group.
#pragma once

#include <set>

#include "platform/date_time.h"
#include "settings/store.h"

namespace settings::preferences {

// Whether a group is a period of the statistics.
[[nodiscard]] bool IsPeriod(ResetGroup group);

// Writes the reset defaults of these groups, in the order of the groups and of the table of all
// values; of a period its marker, its counters and that no alert was shown in it. Throws
// std::runtime_error when the system refuses a write; what was written before stays.
//   now  local date and time
void ResetGroups(Store& store, const std::set<ResetGroup>& groups, platform::DateTime now);

}  // namespace settings::preferences
