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

  // All monitors, the primary one first; never empty.
  [[nodiscard]] virtual std::vector<Monitor> Monitors() = 0;
  // The monitor that `area` lies on for the most part, or else the nearest.
  [[nodiscard]] virtual Monitor MonitorOf(const Rect& area) = 0;
  // A system colour as 0x00BBGGRR; a fixed colour unchanged.
  [[nodiscard]] virtual Colour Resolve(Colour colour) = 0;
  [[nodiscard]] virtual Point Pointer() = 0;
};

}  // namespace platform
