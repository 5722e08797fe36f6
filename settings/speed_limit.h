// The custom connection speed, in the three forms that it has.
#pragma once

#include <cstdint>

namespace settings {

// The dialog shows bits per second; what is stored is an eighth of that. Every limit that is
// computed from the store, in bytes per scan, is once more an eighth of what is stored. So a custom
// speed limits to an eighth of the bytes that its text promises: users' stored values count on it,
// and this is the only place that knows.
constexpr std::int64_t ShownSpeed(std::int64_t stored) { return stored * 8; }
constexpr std::int64_t StoredSpeed(std::int64_t shown) { return shown / 8; }
constexpr std::int64_t LimitOfStoredSpeed(std::int64_t stored) { return stored / 8; }
// The exception: while the user changes it in the dialog, the meter is given the shown speed's own
// bytes, until the limit is next computed from the store.
constexpr std::int64_t LimitOfShownSpeed(std::int64_t shown) { return shown / 8; }

}  // namespace settings
