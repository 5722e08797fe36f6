// Monitors, the user's colour scheme and the mouse pointer.
#pragma once

#include <vector>

#include "platform/colour.h"
#include "platform/geometry.h"

namespace platform {

struct Monitor {
  Rect bounds;     // screen pixels
  Rect work_area;  // `bounds` less task bars
  int dpi = 96;
};

class Screen {
 public:
  virtual ~Screen() = default;

  // Returns all monitors, the primary one first. There is always at least one.
  [[nodiscard]] virtual std::vector<Monitor> Monitors() = 0;
  // Returns the monitor that the largest part of `area` lies on, or else the nearest one.
  [[nodiscard]] virtual Monitor MonitorOf(const Rect& area) = 0;
  // Returns a system colour as 0x00BBGGRR, and a fixed colour unchanged.
  [[nodiscard]] virtual Colour Resolve(Colour colour) = 0;
  [[nodiscard]] virtual Point Pointer() = 0;
};

}  // namespace platform
