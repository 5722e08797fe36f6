// Monitors and colours that tests arrange.
#pragma once

#include <array>
#include <vector>

#include "platform/screen.h"

namespace platform::memory {

class Screen final : public platform::Screen {
 public:
  [[nodiscard]] std::vector<Monitor> Monitors() override { return monitors; }
  [[nodiscard]] Monitor MonitorOf(const Rect& area) override;
  // Resolves system colours in the scheme.
  [[nodiscard]] Colour Resolve(Colour colour) override;
  [[nodiscard]] Point Pointer() override { return pointer; }

  std::vector<Monitor> monitors = {{{0, 0, 1280, 1024}, {0, 0, 1280, 984}, 96}};
  Point pointer;
  // The system colours by their numbers: the classic grey ones.
  std::array<Colour, 27> scheme = {
      0xC8D0D4, 0xA56E3A, 0x6A240A, 0x808080, 0xC8D0D4, 0xFFFFFF, 0x000000, 0x000000, 0x000000,
      0xFFFFFF, 0xC8D0D4, 0xC8D0D4, 0x808080, 0x6A240A, 0xFFFFFF, 0xC8D0D4, 0x808080, 0x808080,
      0x000000, 0xC8D0D4, 0xFFFFFF, 0x404040, 0xC8D0D4, 0x000000, 0xE1FFFF, 0x000000, 0x800000};
};

}  // namespace platform::memory
