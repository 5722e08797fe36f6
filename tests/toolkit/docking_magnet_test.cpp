#include "toolkit/forms/docking_magnet.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

using platform::Point;
using platform::Rect;

class Docking : public testing::Test {
 protected:
  Docking() { form.SetWindowBounds({500, 400, 274, 135}); }

  Point DraggedTo(Point to) {
    machine.windowing.Drag("form", to);
    const Rect bounds = form.WindowBounds();
    EXPECT_EQ(bounds.width, 274);
    EXPECT_EQ(bounds.height, 135);
    return {bounds.left, bounds.top};
  }

  platform::memory::Machine machine;
  Application app{machine.Platform()};
  Form form{app, {"form", "", platform::Frame::kSizeableTool, true}};
  DockingMagnet magnet{form};
};

// The first monitor is 1280 x 1024, its work area 984 high.
TEST_F(Docking, AllFourEdgesOfTheWorkAreaPullAndLetGo) {
  struct Row {
    const char* why;
    Point to, at;
  };
  static constexpr Row kRows[] = {
      {"far from everything", {500, 400}, {500, 400}},
      {"left, just within reach", {15, 400}, {0, 400}},
      {"left, just out of reach", {16, 400}, {16, 400}},
      {"pushed over the left edge, held", {-30, 400}, {0, 400}},
      {"pushed on, free", {-31, 400}, {-31, 400}},
      {"right", {1280 - 274 - 15, 400}, {1280 - 274, 400}},
      {"right, out of reach", {1280 - 274 - 16, 400}, {1280 - 274 - 16, 400}},
      {"right, pushed on", {1280 - 274 + 31, 400}, {1280 - 274 + 31, 400}},
      {"top", {500, 15}, {500, 0}},
      {"top, held", {500, -30}, {500, 0}},
      {"the task bar is the lower edge", {500, 984 - 135 - 15}, {500, 984 - 135}},
      {"below the task bar's edge, held", {500, 984 - 135 + 30}, {500, 984 - 135}},
      {"onto the task bar", {500, 984 - 135 + 31}, {500, 984 - 135 + 31}},
      {"a corner pulls both ways", {10, 980 - 135}, {0, 984 - 135}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(DraggedTo(row.to), row.at);
  }
}

TEST_F(Docking, TheMonitorThatTheFormIsOnPullsWithItsOwnResolution) {
  machine.screen.monitors.push_back({{1280, 0, 1920, 1080}, {1280, 0, 1920, 1040}, 192});
  EXPECT_EQ(DraggedTo({1280 + 30, 400}), (Point{1280, 400})) << "twice the reach at twice the dpi";
  EXPECT_EQ(DraggedTo({3200 - 274 - 20, 1040 - 135 - 20}), (Point{3200 - 274, 1040 - 135}));
  EXPECT_EQ(DraggedTo({1280 - 274 + 10, 400}), (Point{1280 - 274, 400}))
      << "still on the first one, whose right edge is between the two";
}

TEST_F(Docking, SwitchedOffItPullsNothing) {
  magnet.Active = false;
  EXPECT_EQ(DraggedTo({5, 5}), (Point{5, 5}));
}

TEST_F(Docking, WhatTheCodePlacesStaysWhereItIs) {
  form.SetWindowBounds({5, 5, 274, 135});
  EXPECT_EQ(form.WindowBounds(), (Rect{5, 5, 274, 135}));
}

TEST_F(Docking, AFormLargerThanTheWorkAreaIsHeldAtItsUpperLeftCorner) {
  EXPECT_EQ(Docked({-20, 10, 2000, 2000}, {0, 0, 1280, 984}, 15, 30), (Rect{0, 0, 2000, 2000}));
}

}  // namespace
}  // namespace toolkit
