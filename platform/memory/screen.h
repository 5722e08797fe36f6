// Monitors and colours that tests arrange.
#pragma once

#include <vector>

#include "platform/screen.h"

namespace platform::memory {

class Screen final : public platform::Screen {
 public:
  [[nodiscard]] std::vector<Monitor> Monitors() override { return monitors; }
  [[nodiscard]] Monitor MonitorOf(const Rect& area) override;
  // Resolves system colours in the classic grey scheme.
  [[nodiscard]] Colour Resolve(Colour colour) override;
  [[nodiscard]] Point Pointer() override { return pointer; }

  std::vector<Monitor> monitors = {{{0, 0, 1280, 1024}, {0, 0, 1280, 984}, 96}};
  Point pointer;
};

}  // namespace platform::memory
