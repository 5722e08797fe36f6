#include "toolkit/forms/placement.h"

#include <gtest/gtest.h>

#include "platform/memory/screen.h"
#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"

namespace toolkit {
namespace {

using platform::Rect;

const platform::Monitor kScreen{{0, 0, 1366, 768}, {0, 0, 1366, 728}, 96};
const platform::Monitor kFine{{0, 0, 1366, 768}, {0, 0, 1366, 728}, 192};
const platform::Monitor kAbove{{0, -1080, 1920, 1080}, {0, -1080, 1920, 1080}, 96};

TEST(Placement, AWindowIsInSightWhereTheUserCanTakeHoldOfIt) {
  struct Row {
    const char* why;
    Rect bounds;
    Hold hold;
    std::vector<platform::Monitor> monitors;
    bool in_sight;
  };
  const std::vector<Row> rows = {
      {"a corner", {-250, -111, 274, 135}, Hold::kAnywhere, {kScreen}, true},
      {"a corner too low", {-250, -112, 274, 135}, Hold::kAnywhere, {kScreen}, false},
      {"a corner too narrow", {-251, -111, 274, 135}, Hold::kAnywhere, {kScreen}, false},
      {"all of what is smaller", {0, 700, 20, 10}, Hold::kAnywhere, {kScreen}, true},
      {"the same piece at twice the size", {-250, 0, 274, 135}, Hold::kAnywhere, {kFine}, false},
      {"behind the task bar", {0, 710, 274, 135}, Hold::kAnywhere, {kScreen}, false},
      {"the whole height of its caption", {18, 0, 600, 400}, Hold::kCaption, {kScreen}, true},
      {"most of it, but no caption", {18, -128, 600, 400}, Hold::kCaption, {kScreen}, false},
      {"a part of its caption", {-233, -1, 300, 400}, Hold::kCaption, {kScreen}, false},
      {"its caption, above all else", {18, 704, 600, 400}, Hold::kCaption, {kScreen}, true},
      {"less of its caption", {18, 705, 600, 400}, Hold::kCaption, {kScreen}, false},
      {"a caption on the other one", {18, -128, 600, 400}, Hold::kCaption, {kScreen, kAbove}, true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(InSight(row.bounds, row.hold, row.monitors), row.in_sight) << row.why;
  }
}

TEST(Placement, BringsWindowsBackOntoTheNearestMonitor) {
  platform::memory::Screen screen;
  screen.monitors = {{{0, 0, 1000, 800}, {0, 0, 1000, 760}, 96},
                     {{1000, 0, 1000, 800}, {1000, 40, 1000, 760}, 96}};
  struct Row {
    const char* why;
    Rect from;
    Rect to;
  };
  static constexpr Row kRows[] = {
      {"inside", {10, 10, 100, 50}, {10, 10, 100, 50}},
      {"behind the task bar", {10, 740, 100, 50}, {10, 710, 100, 50}},
      {"a monitor that is gone", {5000, 300, 100, 50}, {1900, 300, 100, 50}},
      {"left of everything", {-500, -500, 100, 50}, {0, 0, 100, 50}},
      {"larger than the monitor", {100, 100, 3000, 3000}, {1000, 40, 3000, 3000}},
      {"across two monitors, mostly the second", {960, 0, 100, 50}, {1000, 40, 100, 50}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(BroughtIntoView(row.from, screen), row.to);
  }
}

TEST(Placement, CentringKeepsTheUpperLeftCornerInTheWorkArea) {
  EXPECT_EQ(Centred({400, 300}, kScreen), (Rect{483, 214, 400, 300}));
  EXPECT_EQ(Centred({1500, 900}, kScreen), (Rect{0, 0, 1500, 900}));
}

TEST(Placement, ScrollsNoFurtherThanNeeded) {
  const platform::Scroll scroll{1000, 300, 200, 16};
  EXPECT_EQ(ScrolledToShow(scroll, 200, 500), 200) << "all of it is seen";
  EXPECT_EQ(ScrolledToShow(scroll, 150, 180), 150);
  EXPECT_EQ(ScrolledToShow(scroll, 490, 510), 210);
  EXPECT_EQ(ScrolledToShow(scroll, 450, 900), 200) << "a part of what is higher";
  EXPECT_EQ(ScrolledToShow(scroll, 550, 900), 550);
}

TEST_F(FormTest, HigherThanTheScreenItIsScrolled) {
  machine.screen.monitors = {{{0, 0, 600, 400}, {0, 0, 600, 360}, 96}};
  Button upper(form, "upper");
  Button lower(form, "lower");
  upper.SetBounds({10, 10, 80, 20});
  lower.SetBounds({10, 470, 80, 20});
  form.SetClientSize({300, 500});
  form.CentreOnScreen();
  const auto& peer = machine.windowing.Find("form");
  EXPECT_EQ(peer.bounds.top, 0);
  EXPECT_EQ(peer.bounds.height, 360);
  const int page = peer.ClientSize().height;
  EXPECT_EQ(peer.scroll, (platform::Scroll{500, page, 0, 16}));
  EXPECT_EQ(peer.ClientSize().width, 300) << "the bar takes nothing from the controls";

  form.Show();
  machine.windowing.PressTab("form");
  EXPECT_EQ(machine.windowing.Find("lower").bounds.Bottom(), page) << "the keyboard is seen";
  peer.top_events->OnScroll(5000);
  EXPECT_EQ(machine.windowing.Find("upper").bounds.top, 10 - (500 - page)) << "not beyond its end";
  lower.SetBounds({10, 460, 80, 20});
  EXPECT_EQ(machine.windowing.Find("lower").bounds.Bottom(), page - 20);

  machine.screen.monitors = {{{0, 0, 1280, 1024}, {0, 0, 1280, 984}, 96}};
  peer.top_events->OnDisplayChange();
  EXPECT_EQ(peer.ClientSize(), (platform::Size{300, 500}));
  EXPECT_EQ(machine.windowing.Find("upper").bounds.top, 10);
}

}  // namespace
}  // namespace toolkit
