#include "toolkit/forms/placement.h"

#include <algorithm>

#include "toolkit/design_pixels.h"

namespace toolkit {

platform::Rect Inside(const platform::Rect& bounds, const platform::Rect& work) {
  platform::Rect moved = bounds;
  moved.left = std::max(work.left, std::min(moved.left, work.Right() - moved.width));
  moved.top = std::max(work.top, std::min(moved.top, work.Bottom() - moved.height));
  return moved;
}

platform::Rect BroughtIntoView(const platform::Rect& bounds, platform::Screen& screen) {
  return Inside(bounds, screen.MonitorOf(bounds).work_area);
}

platform::Rect Centred(platform::Size size, const platform::Monitor& monitor) {
  const platform::Rect& work = monitor.work_area;
  return Inside({work.left + (work.width - size.width) / 2,
                 work.top + (work.height - size.height) / 2, size.width, size.height},
                work);
}

bool InSight(const platform::Rect& bounds, Hold hold,
             const std::vector<platform::Monitor>& monitors) {
  const auto shows = [&](const platform::Monitor& monitor) {
    const int piece = ScaleTo(monitor.dpi, 24);
    platform::Rect held = bounds;
    if (hold == Hold::kCaption) held.height = std::min(held.height, piece);
    const platform::Rect& work = monitor.work_area;
    const int width = std::min(held.Right(), work.Right()) - std::max(held.left, work.left);
    const int height = std::min(held.Bottom(), work.Bottom()) - std::max(held.top, work.top);
    return width >= std::min(held.width, piece) && height >= std::min(held.height, piece);
  };
  return std::any_of(monitors.begin(), monitors.end(), shows);
}

int ScrolledToShow(const platform::Scroll& scroll, int low, int high) {
  const bool fits = high - low <= scroll.page;
  const bool seen = low < scroll.position + scroll.page && high > scroll.position;
  if (!fits && seen) return scroll.position;
  return std::min(std::max(scroll.position, high - scroll.page), low);
}

}  // namespace toolkit
