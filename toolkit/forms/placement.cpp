#include "toolkit/forms/placement.h"

#include <algorithm>

namespace toolkit {

platform::Rect BroughtIntoView(const platform::Rect& bounds, platform::Screen& screen) {
  const platform::Rect work = screen.MonitorOf(bounds).work_area;
  platform::Rect moved = bounds;
  moved.left = std::max(work.left, std::min(moved.left, work.Right() - moved.width));
  moved.top = std::max(work.top, std::min(moved.top, work.Bottom() - moved.height));
  return moved;
}

bool InSight(const platform::Rect& bounds, const std::vector<platform::Monitor>& monitors) {
  constexpr int kHold = 24;  // pixels, either way
  const auto shows = [&](const platform::Monitor& monitor) {
    const platform::Rect& work = monitor.work_area;
    const int width = std::min(bounds.Right(), work.Right()) - std::max(bounds.left, work.left);
    const int height = std::min(bounds.Bottom(), work.Bottom()) - std::max(bounds.top, work.top);
    return width >= std::min(bounds.width, kHold) && height >= std::min(bounds.height, kHold);
  };
  return std::any_of(monitors.begin(), monitors.end(), shows);
}

}  // namespace toolkit
