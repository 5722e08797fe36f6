#include "toolkit/placement.h"

#include <algorithm>

namespace toolkit {

platform::Rect BroughtIntoView(const platform::Rect& bounds, platform::Screen& screen) {
  const platform::Rect work = screen.MonitorOf(bounds).work_area;
  platform::Rect moved = bounds;
  moved.left = std::max(work.left, std::min(moved.left, work.Right() - moved.width));
  moved.top = std::max(work.top, std::min(moved.top, work.Bottom() - moved.height));
  return moved;
}

}  // namespace toolkit
