// Puts stored options back to their defaults, group by group.
#pragma once

#include <optional>
#include <set>

#include "engine/periods.h"
#include "platform/date_time.h"
#include "settings/store.h"

namespace preferences {

// Returns the period whose statistics the group stands for, or nullopt for a group of options.
[[nodiscard]] std::optional<engine::Period> PeriodOf(settings::ResetGroup group);

// Writes the reset defaults of these groups, in the order of the groups and of the table of all
// values; a period begins anew today. Throws std::runtime_error when the system refuses a write;
// what was written before stays.
//   now  local date and time
void ResetGroups(settings::Store& store, const std::set<settings::ResetGroup>& groups,
                 platform::DateTime now);

}  // namespace preferences
