// Monitors, system colours, the pointer.
#pragma once

#include "platform/screen.h"

namespace platform::windows {

class Screen final : public platform::Screen {
 public:
  [[nodiscard]] std::vector<Monitor> Monitors() override;
  [[nodiscard]] Monitor MonitorOf(const Rect& area) override;
  [[nodiscard]] Colour Resolve(Colour colour) override;
  [[nodiscard]] Point Pointer() override;
};

}  // namespace platform::windows
