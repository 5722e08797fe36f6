// The scale of the graph: which amounts its lower and upper edge stand for.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace display {

// One scan as the graph shows it, in bytes per second.
struct GraphSample {
  std::int32_t in = 0;
  std::int32_t out = 0;
};

enum class ScaleUnits { kKBytes, kKBits };

struct GraphScale {
  std::int64_t low = 0;   // bytes per second at the lower edge
  std::int64_t high = 1;  // at the upper edge; above `low`

  // Returns the height of an amount in a graph that is `height` pixels high. An amount above zero
  // is at least one pixel high, so that no traffic is hidden.
  [[nodiscard]] int HeightOf(std::int64_t amount, int height) const;
};

struct ScaleRule {
  // When true, the scale fits the largest amount in sight; when false, it ends at SpeedLimit.
  bool AutoScale = true;
  std::int64_t SpeedLimit = 0;  // bytes per second
  bool ZeroBased = false;       // when false, the scale of a high and steady load leaves zero
  display::ScaleUnits ScaleUnits = display::ScaleUnits::kKBytes;

  friend bool operator==(const ScaleRule&, const ScaleRule&) = default;
};

// Returns the scale for the samples in sight. The upper edge of an automatic scale is a round
// number of the chosen unit at or above the largest amount, so it rises at once and comes down when
// the peak leaves. The lower edge is round too, and at half of the smallest amount at the most, so
// that what flows is seen.
[[nodiscard]] GraphScale ScaleFor(std::span<const GraphSample> in_sight, const ScaleRule& choice);

// Returns an amount as the scale writes it, such as "12,5 kB" or "96 kb": with three digits at the
// most, in the unit of that family that makes it so.
[[nodiscard]] std::string ScaleText(std::int64_t bytes_per_second, ScaleUnits units,
                                    std::string_view decimal_separator);

}  // namespace display
