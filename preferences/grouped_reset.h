// Puts stored options back to their defaults, group by group.
#pragma once

#include <set>

#include "platform/date_time.h"
#include "settings/store.h"

namespace preferences {

// Whether a group is a period of the statistics.
[[nodiscard]] bool IsPeriod(settings::ResetGroup group);

// Writes the reset defaults of these groups, in the order of the groups and of the table of all
// values; of a period its marker, its counters and that no alert was shown in it. Throws
// std::runtime_error when the system refuses a write; what was written before stays.
//   now  local date and time
void ResetGroups(settings::Store& store, const std::set<settings::ResetGroup>& groups,
                 platform::DateTime now);

}  // namespace preferences
