// Where windows stand: rules, what a form does with them, what is stored.
#include "toolkit/forms/placement.h"

#include <climits>
#include <tuple>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/forms/placement_saver.h"

namespace toolkit {
namespace {

using platform::Point;
using platform::Rect;
using enum Hold;

const platform::Monitor kScreen{{0, 0, 1366, 768}, {0, 0, 1366, 728}, 96};
const platform::Monitor kFine{{0, 0, 1366, 768}, {0, 0, 1366, 728}, 192};
const platform::Monitor kAbove{{0, -1080, 1920, 1080}, {0, -1080, 1920, 1080}, 96};

TEST(Placement, AWindowIsInSightWhereTheUserCanTakeHoldOfIt) {
  using Row = std::tuple<const char*, Rect, Hold, std::vector<platform::Monitor>, bool>;
  for (const auto& [why, bounds, hold, monitors, in_sight] : {
           Row{"a corner", {-250, -111, 274, 135}, kAnywhere, {kScreen}, true},
           Row{"a corner too low", {-250, -112, 274, 135}, kAnywhere, {kScreen}, false},
           Row{"a corner too narrow", {-251, -111, 274, 135}, kAnywhere, {kScreen}, false},
           Row{"all of what is smaller", {0, 700, 20, 10}, kAnywhere, {kScreen}, true},
           Row{"at twice the size", {-250, 0, 274, 135}, kAnywhere, {kFine}, false},
           Row{"behind the task bar", {0, 710, 274, 135}, kAnywhere, {kScreen}, false},
           Row{"its whole caption", {18, 0, 600, 400}, kCaption, {kScreen}, true},
           Row{"most of it, but no caption", {18, -128, 600, 400}, kCaption, {kScreen}, false},
           Row{"a part of its caption", {-233, -1, 300, 400}, kCaption, {kScreen}, false},
           Row{"its caption, above all else", {18, 704, 600, 400}, kCaption, {kScreen}, true},
           Row{"less of its caption", {18, 705, 600, 400}, kCaption, {kScreen}, false},
           Row{"a caption on the other one",
               {18, -128, 600, 400},
               kCaption,
               {kScreen, kAbove},
               true},
       }) {
    EXPECT_EQ(InSight(bounds, hold, monitors), in_sight) << why;
  }
}

TEST(Placement, BringsWindowsBackOntoTheNearestMonitor) {
  platform::memory::Screen screen;
  screen.monitors = {{{0, 0, 1000, 800}, {0, 0, 1000, 760}, 96},
                     {{1000, 0, 1000, 800}, {1000, 40, 1000, 760}, 96}};
  using Row = std::tuple<const char*, Rect, Rect>;
  for (const auto& [why, from, to] : {
           Row{"inside", {10, 10, 100, 50}, {10, 10, 100, 50}},
           Row{"behind the task bar", {10, 740, 100, 50}, {10, 710, 100, 50}},
           Row{"a monitor that is gone", {5000, 300, 100, 50}, {1900, 300, 100, 50}},
           Row{"left of everything", {-500, -500, 100, 50}, {0, 0, 100, 50}},
           Row{"larger than the monitor", {100, 100, 3000, 3000}, {1000, 40, 3000, 3000}},
           Row{"across two monitors, mostly the second", {960, 0, 100, 50}, {1000, 40, 100, 50}},
       }) {
    EXPECT_EQ(BroughtIntoView(from, screen), to) << why;
  }
  EXPECT_EQ(Centred({400, 300}, kScreen), (Rect{483, 214, 400, 300}));
  EXPECT_EQ(Centred({1500, 900}, kScreen), (Rect{0, 0, 1500, 900}));
}

TEST(Placement, ScrollsNoFurtherThanNeeded) {
  const platform::Scroll scroll{1000, 300, 200, 16};
  EXPECT_EQ(ScrolledToShow(scroll, 200, 500), 200);
  EXPECT_EQ(ScrolledToShow(scroll, 150, 180), 150);
  EXPECT_EQ(ScrolledToShow(scroll, 490, 510), 210);
  EXPECT_EQ(ScrolledToShow(scroll, 499, 900), 200) << "its upper edge is seen";
  EXPECT_EQ(ScrolledToShow(scroll, 500, 900), 500) << "nothing of it";
  EXPECT_EQ(ScrolledToShow(scroll, -200, 200), -200) << "nor of what ends above";
}

TEST_F(FormTest, AWindowStandsInTheMiddleAndIsScrolledWhereItIsHigherThanTheScreen) {
  machine.screen.monitors = {{{0, 0, 1000, 400}, {0, 0, 1000, 360}, 96},
                             {{1000, 0, 1000, 800}, {1000, 0, 1000, 760}, 96}};
  Form dialog(app, Params("dialog"), &form);
  Button upper(dialog, "upper"), lower(dialog, "lower");
  upper.SetBounds({10, 10, 80, 20});
  lower.SetBounds({10, 470, 80, 20});
  dialog.SetClientSize({294, 500});  // the frame takes 6 by 25
  const auto& peer = Widget("dialog");
  EXPECT_EQ(peer.scroll, (platform::Scroll{500, 335, 0, 16}));
  form.SetWindowBounds({1500, 10, 306, 325});
  dialog.CentreOnScreen();
  EXPECT_EQ(dialog.WindowBounds(), (Rect{1350, 117, 300, 525})) << "on its owner's monitor";
  form.SetWindowBounds({500, 10, 306, 325});
  dialog.CentreOnScreen();
  EXPECT_EQ(dialog.WindowBounds(), (Rect{341, 0, 317, 360}));

  dialog.Show();
  User().PressTab("dialog");
  EXPECT_EQ(Widget("lower").bounds.Bottom(), 335) << "the keyboard is seen";
  peer.top_events->OnScroll(5000);
  EXPECT_EQ(Widget("upper").bounds.top, 10 - (500 - 335)) << "not beyond its end";
  lower.SetBounds({10, 460, 80, 20});
  EXPECT_EQ(Widget("lower").bounds.Bottom(), 335 - 20);

  machine.screen.monitors[0].work_area.height = 700;
  peer.top_events->OnDisplayChange();
  EXPECT_EQ(peer.ClientSize(), (platform::Size{294, 500}));
  EXPECT_EQ(Widget("upper").bounds.top, 10);
  dialog.SetWindowBounds({500, 300, 300, 525});
  dialog.SetClientSize({294, 600});
  EXPECT_EQ(dialog.WindowBounds(), (Rect{500, 75, 300, 625})) << "what grows stays in sight";
  User().ChangeDpi("dialog", 144, {0, 0, 450, 300});
  EXPECT_EQ(dialog.ClientPixels(), (platform::Size{441, 675}));
}

constexpr std::string_view kKey = "\\Software\\Maker\\Screen";
constexpr Rect kDesign{100, 100, 274, 135};
const platform::Monitor kSecond{{1280, 0, 1920, 1080}, {1280, 0, 1920, 1040}, 96};

// One run of a program with a form that the user places.
struct Program {
  explicit Program(platform::memory::Machine& machine,
                   PlacementSaver::Restores what = PlacementSaver::Restores::kPlaceAndSize)
      : app(machine.Platform()),
        form(app, {"placed", "", platform::Frame::kSizeableTool, true}),
        saver(form, kKey, what) {
    form.SetWindowBounds(kDesign);
    saver.Restore();
  }
  [[nodiscard]] Rect At() const { return form.WindowBounds(); }
  Application app;
  Form form;
  PlacementSaver saver;
};

class SavedPlacement : public testing::Test, protected test::Computer {
 protected:
  void Store(const Rect& place, int dpi = 96) {
    for (const auto& [name, value] : {std::pair{"Left", place.left},
                                      {"Top", place.top},
                                      {"Width", place.width},
                                      {"Height", place.height},
                                      {"Dpi", dpi}}) {
      machine.registry.Set(kKey, name, RegistryValue::Dword(static_cast<std::uint32_t>(value)));
    }
  }
  Rect Stored() {
    const auto read = [this](const char* name) {
      return static_cast<int>(machine.registry.Dword(kKey, name).value_or(0xDEAD));
    };
    return {read("Left"), read("Top"), read("Width"), read("Height")};
  }
  void Drag(Point to) { machine.windowing.Drag("placed", to); }
  void Place(const Rect& bounds) { machine.windowing.Place("placed", bounds); }
  void DisplayChanges() { Widget("placed").top_events->OnDisplayChange(); }
};

TEST_F(SavedPlacement, EveryMoveIsStoredOnceAndComesBackInTheNextRun) {
  {
    Program run(machine);
    EXPECT_EQ(run.At(), kDesign) << "nothing is stored yet";
    run.form.SetWindowBounds({200, 300, 274, 135});
    EXPECT_EQ(Stored(), (Rect{200, 300, 274, 135}));
    Place({-20, 50, 300, 150});
    EXPECT_EQ(Stored(), (Rect{-20, 50, 300, 150}));
    machine.notebook.Restart();
    Drag({1270, 400});
    EXPECT_EQ(run.At(), (Rect{1280 - 300, 400, 300, 150})) << "out of sight it comes into view";
    EXPECT_EQ(Stored(), run.At());
    EXPECT_EQ(machine.notebook.registry.round_trips, 1);
    Place({3, -140, 300, 150});
    run.form.Show();
    EXPECT_EQ(run.At(), (Rect{3, 0, 300, 150}));
    Drag({-20, 50});
  }
  Program run(machine);
  EXPECT_EQ(run.At(), (Rect{-20, 50, 300, 150})) << "most of it is in sight";
  run.form.Show();
  Widget("placed").dragging = true;
  Place({200, 300, 274, 135});
  EXPECT_EQ(Stored().left, -20) << "the user may still move it on";
  machine.windowing.ClickCloseBox("placed");
  EXPECT_EQ(Stored(), (Rect{200, 300, 274, 135})) << "closed while it is held";
  machine.registry.RemoveKey(kKey);
  Widget("placed").top_events->OnEndSession();
  EXPECT_EQ(Stored(), (Rect{200, 300, 274, 135}));
  Names reported;
  run.app.SetExceptionHandler([&](std::string_view message) { reported.emplace_back(message); });
  for (int call = 1; call <= 6; ++call) {
    machine.notebook.FailCall(call);
    run.form.SetWindowBounds({call, call, 274, 135});
  }
  EXPECT_EQ(reported, Names()) << "a registry that refuses";
}

TEST_F(SavedPlacement, WhatCannotBeUsedIsBroughtIntoViewOrLeftOut) {
  using Row = std::tuple<const char*, Rect, Rect, int>;
  for (const auto& [why, stored, placed, dpi] : {
           Row{"far away", {90000, -90000, 274, 135}, {1280 - 274, 0, 274, 135}, 96},
           Row{"farthest", {INT_MAX, INT_MIN, 274, 135}, {1280 - 274, 0, 274, 135}, 96},
           Row{"too small a strip", {1270, 400, 274, 135}, {1280 - 274, 400, 274, 135}, 96},
           Row{"no height", {40, 50, 300, 0}, {40, 50, 274, 135}, 96},
           Row{"a size below zero", {40, 50, -300, 135}, {40, 50, 274, 135}, 96},
           Row{"a size that no window has", {40, 50, 32768, 100}, {40, 50, 274, 135}, 96},
           Row{"of another resolution", {10, 20, 300, 150}, {10, 20, 150, 75}, 192},
           Row{"of the lowest", {10, 20, 300, 150}, {10, 20, 600, 300}, 48},
           Row{"of none", {10, 20, 300, 150}, {10, 20, 300, 150}, 47},
           Row{"nor such a one", {10, 20, 300, 150}, {10, 20, 300, 150}, 961},
       }) {
    Store(stored, dpi);
    EXPECT_EQ(Program(machine).At(), placed) << why;
  }
  Store({10, 20, 500, 600});
  EXPECT_EQ(Program(machine, PlacementSaver::Restores::kPlace).At(), (Rect{10, 20, 274, 135}))
      << "a form of a fixed size";
  machine.registry.RemoveKey(kKey);
  machine.registry.Set(kKey, "Left", RegistryValue::Text("12"));
  EXPECT_EQ(Program(machine).At(), kDesign) << "texts are no numbers";
}

TEST_F(SavedPlacement, APlaceOnAMissingMonitorIsKeptAndComesBackWithIt) {
  Store({2000, 300, 274, 135});
  {
    Program moved(machine);
    EXPECT_EQ(moved.At(), (Rect{1280 - 274, 300, 274, 135}));
    EXPECT_EQ(Stored(), (Rect{2000, 300, 274, 135})) << "to bring it into view is no wish";
    Place({700, 300, 274, 135});
    EXPECT_EQ(Stored().left, 700) << "no monitor came or went";
  }
  Store({2000, 300, 274, 135});
  Program run(machine);
  for (const bool announced : {true, false, true}) {
    machine.screen.monitors.push_back(kSecond);
    DisplayChanges();
    EXPECT_EQ(run.At(), (Rect{2000, 300, 274, 135}));
    machine.screen.monitors.pop_back();
    if (!announced) Place({700, 300, 274, 135});  // by the system, before it tells of the change
    EXPECT_EQ(Stored(), (Rect{2000, 300, 274, 135}));
    DisplayChanges();
    EXPECT_EQ(run.At().left, 1280 - 274);
  }
  Drag({10, 20});
  machine.screen.monitors.push_back(kSecond);
  DisplayChanges();
  EXPECT_EQ(run.At(), (Rect{10, 20, 274, 135})) << "that is where the user has it";
  EXPECT_EQ(Stored(), run.At());
}

}  // namespace
}  // namespace toolkit
