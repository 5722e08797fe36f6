#include "toolkit/forms/docking_magnet.h"

#include "toolkit/application.h"
#include "toolkit/design_pixels.h"

namespace toolkit {
namespace {

struct Stretch {
  int low;
  int length;
};

int Pulled(const Stretch& window, const Stretch& work, int reach, int hold) {
  const auto attracts = [&](int inside) { return inside <= reach && inside >= -hold; };
  const int farthest = work.low + work.length - window.length;
  if (attracts(window.low - work.low)) return work.low;
  return attracts(farthest - window.low) ? farthest : window.low;
}

}  // namespace

platform::Rect Docked(const platform::Rect& bounds, const platform::Rect& work, int reach,
                      int hold) {
  platform::Rect docked = bounds;
  docked.left = Pulled({bounds.left, bounds.width}, {work.left, work.width}, reach, hold);
  docked.top = Pulled({bounds.top, bounds.height}, {work.top, work.height}, reach, hold);
  return docked;
}

void DockingMagnet::FormMoving(platform::Rect& bounds) {
  if (!Active) return;
  const platform::Monitor monitor = form_.App().Platform().screen.MonitorOf(bounds);
  bounds = Docked(bounds, monitor.work_area, ScaleTo(monitor.dpi, DesktopPower),
                  ScaleTo(monitor.dpi, Power));
}

}  // namespace toolkit
