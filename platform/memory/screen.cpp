#include "platform/memory/screen.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace platform::memory {
namespace {

// Compares how near two monitors are to an area: by what they have in common with it, and by the
// square of the distance.
std::pair<std::int64_t, std::int64_t> Nearness(const Rect& a, const Rect& b) {
  const std::int64_t width = std::min(a.Right(), b.Right()) - std::max(a.left, b.left);
  const std::int64_t height = std::min(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
  const std::int64_t dx = std::min<std::int64_t>(0, width);
  const std::int64_t dy = std::min<std::int64_t>(0, height);
  return {width > 0 && height > 0 ? width * height : 0, -(dx * dx + dy * dy)};
}

}  // namespace

Monitor Screen::MonitorOf(const Rect& area) {
  return *std::max_element(monitors.begin(), monitors.end(), [&](const auto& a, const auto& b) {
    return Nearness(area, a.bounds) < Nearness(area, b.bounds);
  });
}

Colour Screen::Resolve(Colour colour) {
  if (!IsSystemColour(colour)) return colour & 0xFFFFFFU;
  const std::uint32_t index = colour & 0xFFU;
  return index < scheme.size() ? scheme[index] : colour::kBlack;
}

}  // namespace platform::memory
