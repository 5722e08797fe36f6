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

  // Height of an amount in a graph so many pixels high: 0 to `height`. An amount above zero is at
  // least one pixel high, so that no traffic is hidden.
  [[nodiscard]] int HeightOf(std::int64_t amount, int height) const;
};

struct ScaleRule {
  bool auto_scale = true;
  std::int64_t speed_limit = 0;  // bytes per second at the upper edge, when not automatic
  bool zero_based = false;       // off: the lower edge follows the smallest amount in sight
  ScaleUnits units = ScaleUnits::kKBytes;
};

// The scale for the samples in sight. Automatic: the upper edge is a round number of the chosen
// unit at or above the largest amount, so it rises at once and comes down when the peak leaves.
[[nodiscard]] GraphScale ScaleFor(std::span<const GraphSample> in_sight, const ScaleRule& choice);

// An amount as the scale writes it, such as "12,5 kB" or "96 kb": three digits at the most, in the
// unit of that family that makes it so.
[[nodiscard]] std::string ScaleText(std::int64_t bytes_per_second, ScaleUnits units,
                                    std::string_view decimal_separator);

}  // namespace display
