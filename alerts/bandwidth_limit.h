// The allowance for a day, week or month, and how much of it is used.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "engine/periods.h"
#include "settings/store.h"

namespace alerts {

// The limit in its unit; 0 where none is stored.
[[nodiscard]] std::int64_t LimitNumber(settings::Store& store);

// The limit in bytes; nothing for a stored unit that does not exist. Wraps like all sums.
[[nodiscard]] std::optional<std::int64_t> LimitBytes(settings::Store& store);

// The period that the limit is for; nothing for a stored one that does not exist.
[[nodiscard]] std::optional<engine::Period> ReadLimitPeriod(settings::Store& store);

// What moved so far in the period. Throws settings::ConversionError when a stored total is no
// number.
[[nodiscard]] std::int64_t PeriodTotalDL(settings::Store& store, engine::Period period);
[[nodiscard]] std::int64_t PeriodTotalUL(settings::Store& store, engine::Period period);

// The scan's step: when the counted total has reached the limit, marks the alert as shown
// ("BAShow") and then runs `alert`. Once in a period: every reset of a day, week or month clears
// the mark, whichever of them the limit is for, so a monthly limit that is exceeded alerts again
// each day.
void CheckBandwidthAlert(settings::Store& store, const std::function<void()>& alert);

}  // namespace alerts
