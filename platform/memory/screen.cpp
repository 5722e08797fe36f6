#include "platform/memory/screen.h"

#include <algorithm>
#include <cstdint>

namespace platform::memory {
namespace {

std::int64_t CommonArea(const Rect& a, const Rect& b) {
  const int width = std::min(a.Right(), b.Right()) - std::max(a.left, b.left);
  const int height = std::min(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
  return width > 0 && height > 0 ? std::int64_t{width} * height : 0;
}

// Returns the square of the distance between two rectangles.
std::int64_t Distance(const Rect& a, const Rect& b) {
  const std::int64_t dx = std::max({0, a.left - b.Right(), b.left - a.Right()});
  const std::int64_t dy = std::max({0, a.top - b.Bottom(), b.top - a.Bottom()});
  return dx * dx + dy * dy;
}

}  // namespace

Monitor Screen::MonitorOf(const Rect& area) {
  return *std::max_element(monitors.begin(), monitors.end(),
                           [&area](const Monitor& a, const Monitor& b) {
                             const std::int64_t common_a = CommonArea(area, a.bounds);
                             const std::int64_t common_b = CommonArea(area, b.bounds);
                             if (common_a != common_b) return common_a < common_b;
                             return Distance(area, a.bounds) > Distance(area, b.bounds);
                           });
}

Colour Screen::Resolve(Colour colour) {
  if (!IsSystemColour(colour)) return colour & 0xFFFFFFU;
  const std::uint32_t index = colour & 0xFFU;
  return index < scheme.size() ? scheme[index] : colour::kBlack;
}

}  // namespace platform::memory
