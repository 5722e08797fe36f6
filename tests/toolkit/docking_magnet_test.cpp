#include "toolkit/forms/docking_magnet.h"

#include <tuple>

#include "tests/toolkit/form_fixture.h"

namespace toolkit {
namespace {

using platform::Point;
using platform::Rect;

// The first monitor is 1280 x 1024, its work area 984 high; the second one has twice the dpi.
TEST_F(FormTest, AllFourEdgesOfTheWorkAreaPullAndLetGo) {
  machine.screen.monitors.push_back({{1280, 0, 1920, 1080}, {1280, 0, 1920, 1040}, 192});
  Form docked(app, {"docked", "", platform::Frame::kSizeableTool, true});
  DockingMagnet magnet(docked);
  using Row = std::tuple<const char*, Point, Point>;
  for (const auto& [why, to, at] : {
           Row{"far from everything", {500, 400}, {500, 400}},
           Row{"left, just within reach", {15, 400}, {0, 400}},
           Row{"left, just out of reach", {16, 400}, {16, 400}},
           Row{"pushed over the left edge, held", {-30, 400}, {0, 400}},
           Row{"pushed on, free", {-31, 400}, {-31, 400}},
           Row{"right", {1280 - 274 - 15, 400}, {1280 - 274, 400}},
           Row{"right, out of reach", {1280 - 274 - 16, 400}, {1280 - 274 - 16, 400}},
           Row{"top, held", {500, -30}, {500, 0}},
           Row{"the task bar is the lower edge", {500, 984 - 135 - 15}, {500, 984 - 135}},
           Row{"below the task bar's edge, held", {500, 984 - 135 + 30}, {500, 984 - 135}},
           Row{"onto the task bar", {500, 984 - 135 + 31}, {500, 984 - 135 + 31}},
           Row{"twice the reach at twice the dpi", {1280 + 30, 400}, {1280, 400}},
           Row{"its other corner", {3200 - 274 - 20, 1040 - 135 - 20}, {3200 - 274, 1040 - 135}},
       }) {
    docked.SetWindowBounds({500, 400, 274, 135});
    User().Drag("docked", to);
    EXPECT_EQ(docked.WindowBounds(), (Rect{at.x, at.y, 274, 135})) << why;
  }
  docked.SetWindowBounds({5, 5, 274, 135});
  EXPECT_EQ(docked.WindowBounds().left, 5) << "what the code places stays where it is";
  magnet.Active = false;
  User().Drag("docked", {6, 6});
  EXPECT_EQ(docked.WindowBounds().left, 6);
  EXPECT_EQ(Docked({-20, 10, 2000, 2000}, {0, 0, 1280, 984}, 15, 30), (Rect{0, 0, 2000, 2000}))
      << "larger than the work area";
}

}  // namespace
}  // namespace toolkit
