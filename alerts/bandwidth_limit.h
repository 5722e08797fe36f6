// The allowance for a day, week or month, and how much of it is used.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "engine/periods.h"
#include "settings/store.h"

namespace alerts {

// Returns the limit in its unit, or 0 when none is stored.
[[nodiscard]] std::int64_t LimitNumber(settings::Store& store);

// Returns the limit in bytes, or nullopt when the stored unit does not exist.
[[nodiscard]] std::optional<std::int64_t> LimitBytes(settings::Store& store);

// Returns the period that the limit is for, or nullopt when the stored period does not exist.
[[nodiscard]] std::optional<engine::Period> ReadLimitPeriod(settings::Store& store);

// Return the bytes that moved so far in the period. They throw settings::ConversionError when the
// stored total is no number.
[[nodiscard]] std::int64_t PeriodTotalDL(settings::Store& store, engine::Period period);
[[nodiscard]] std::int64_t PeriodTotalUL(settings::Store& store, engine::Period period);

// The limit's step of a scan: when the counted total has reached the limit, marks the alert as
// shown ("BAShow") and then runs `alert`. The alert is given once in a period: every reset of a
// day, week or month clears the mark, whichever of them the limit is for, so a monthly limit that
// is exceeded alerts again each day.
void CheckBandwidthAlert(settings::Store& store, const std::function<void()>& alert);

}  // namespace alerts
