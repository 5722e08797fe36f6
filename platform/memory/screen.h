// Monitors and colours that tests arrange.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/screen.h"

namespace platform::memory {

class Screen final : public platform::Screen {
 public:
  std::vector<Monitor> Monitors() override { return monitors; }
  Monitor MonitorOf(const Rect& area) override {
    return *std::max_element(monitors.begin(), monitors.end(), [&](const auto& a, const auto& b) {
      return Nearness(area, a.bounds) < Nearness(area, b.bounds);
    });
  }
  // Resolves system colours in the scheme.
  Colour Resolve(Colour colour) override {
    if (!IsSystemColour(colour)) return colour & 0xFFFFFFU;
    const std::uint32_t index = colour & 0xFFU;
    return index < scheme.size() ? scheme[index] : colour::kBlack;
  }
  Point Pointer() override { return pointer; }

  std::vector<Monitor> monitors = {{{0, 0, 1280, 1024}, {0, 0, 1280, 984}, 96}};
  Point pointer;
  // The system colours by their numbers: the classic grey ones.
  std::array<Colour, 27> scheme = {
      0xC8D0D4, 0xA56E3A, 0x6A240A, 0x808080, 0xC8D0D4, 0xFFFFFF, 0x000000, 0x000000, 0x000000,
      0xFFFFFF, 0xC8D0D4, 0xC8D0D4, 0x808080, 0x6A240A, 0xFFFFFF, 0xC8D0D4, 0x808080, 0x808080,
      0x000000, 0xC8D0D4, 0xFFFFFF, 0x404040, 0xC8D0D4, 0x000000, 0xE1FFFF, 0x000000, 0x800000};

 private:
  // Compares how near two monitors are to an area: by what they have in common with it, and by the
  // square of the distance.
  static std::pair<std::int64_t, std::int64_t> Nearness(const Rect& a, const Rect& b) {
    const std::int64_t width = std::min(a.Right(), b.Right()) - std::max(a.left, b.left);
    const std::int64_t height = std::min(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
    const std::int64_t dx = std::min<std::int64_t>(0, width);
    const std::int64_t dy = std::min<std::int64_t>(0, height);
    return {width > 0 && height > 0 ? width * height : 0, -(dx * dx + dy * dy)};
  }
};

}  // namespace platform::memory
