#include "platform/screen.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::Monitor;
using platform::Rect;

TEST(Screen, EveryMonitorHasAWorkAreaInside) {
  const std::unique_ptr<Desk> desk = MakeDesk();
  const std::vector<Monitor> monitors = desk->Platform().screen.Monitors();
  ASSERT_FALSE(monitors.empty());
  EXPECT_TRUE(monitors[0].bounds.Contains({0, 0})) << "the primary one is the first";
  for (const Monitor& monitor : monitors) {
    EXPECT_FALSE(monitor.work_area.Empty());
    EXPECT_GE(monitor.work_area.left, monitor.bounds.left);
    EXPECT_GE(monitor.work_area.top, monitor.bounds.top);
    EXPECT_LE(monitor.work_area.Right(), monitor.bounds.Right());
    EXPECT_LE(monitor.work_area.Bottom(), monitor.bounds.Bottom());
    EXPECT_GE(monitor.dpi, 96);
  }
}

TEST(Screen, AnAreaLiesOnAMonitorOrBesideOne) {
  const std::unique_ptr<Desk> desk = MakeDesk();
  const Monitor primary = desk->Platform().screen.Monitors()[0];
  EXPECT_EQ(desk->Platform().screen.MonitorOf({10, 10, 50, 50}).bounds, primary.bounds);
  const Monitor nearest = desk->Platform().screen.MonitorOf({-30000, -30000, 50, 50});
  EXPECT_FALSE(nearest.bounds.Empty());
}

}  // namespace
}  // namespace contract
