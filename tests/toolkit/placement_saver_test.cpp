#include "toolkit/forms/placement_saver.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

using platform::Rect;
using platform::memory::RegistryValue;

constexpr std::string_view kKey = "\\Software\\Maker\\Screen";
constexpr Rect kDesign{100, 100, 274, 135};
const platform::Monitor kSecond{{1280, 0, 1920, 1080}, {1280, 0, 1920, 1040}, 96};

class SavedPlacement : public testing::Test {
 protected:
  // One run of a program with the form.
  struct Run {
    explicit Run(platform::memory::Machine& machine,
                 PlacementSaver::Restores what = PlacementSaver::Restores::kPlaceAndSize)
        : app(machine.Platform()),
          form(app, {"form", "", platform::Frame::kSizeableTool, true}),
          saver(form, kKey, what) {
      form.SetWindowBounds(kDesign);
      saver.Restore();
    }
    Application app;
    Form form;
    PlacementSaver saver;
  };

  void Store(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height) {
    const std::pair<const char*, std::int64_t> values[] = {
        {"Left", left}, {"Top", top}, {"Width", width}, {"Height", height}};
    for (const auto& [name, value] : values) {
      machine.registry.Set(kKey, name, RegistryValue::Dword(static_cast<std::uint32_t>(value)));
    }
  }
  Rect Stored() {
    const auto read = [this](const char* name) {
      return static_cast<int>(machine.registry.Dword(kKey, name).value_or(0xDEAD));
    };
    return {read("Left"), read("Top"), read("Width"), read("Height")};
  }

  platform::memory::Machine machine;
};

TEST_F(SavedPlacement, EveryMoveIsStoredAndComesBackInTheNextRun) {
  {
    Run run(machine);
    EXPECT_EQ(run.form.WindowBounds(), kDesign) << "nothing is stored yet";
    run.form.SetWindowBounds({200, 300, 274, 135});
    EXPECT_EQ(Stored(), (Rect{200, 300, 274, 135}));
    machine.windowing.Place("form", {-20, 50, 300, 150});
    EXPECT_EQ(Stored(), (Rect{-20, 50, 300, 150}));
  }
  Run run(machine);
  EXPECT_EQ(run.form.WindowBounds(), (Rect{-20, 50, 300, 150})) << "most of it is in sight";
}

TEST_F(SavedPlacement, WhileTheUserDragsItIsStoredOnceAtTheEnd) {
  Run run(machine);
  machine.notebook.Restart();
  machine.windowing.Drag("form", {640, 480});
  EXPECT_EQ(Stored(), (Rect{640, 480, 274, 135}));
  EXPECT_EQ(machine.notebook.registry.round_trips, 1);
}

TEST_F(SavedPlacement, WhoeverPutsItOutOfSightFindsItInViewAgain) {
  Run run(machine);
  machine.windowing.Drag("form", {1270, 400});
  EXPECT_EQ(run.form.WindowBounds(), (Rect{1280 - 274, 400, 274, 135}));
  EXPECT_EQ(Stored(), run.form.WindowBounds());
  machine.windowing.Place("form", {3, -120, 274, 135});
  run.form.Show();
  EXPECT_EQ(run.form.WindowBounds(), (Rect{3, 0, 274, 135}));
}

TEST_F(SavedPlacement, ClosingTheFormAndTheEndOfTheSessionStoreIt) {
  Run run(machine);
  run.form.Show();
  machine.registry.RemoveKey(kKey);
  machine.windowing.ClickCloseBox("form");
  EXPECT_EQ(Stored(), kDesign);
  machine.registry.RemoveKey(kKey);
  machine.windowing.Find("form").top_events->OnEndSession();
  EXPECT_EQ(Stored(), kDesign);
}

TEST_F(SavedPlacement, AFormThatClosesWhileTheUserHoldsItIsStoredWhereItIs) {
  Run run(machine);
  run.form.Show();
  machine.windowing.Find("form").dragging = true;
  machine.windowing.Place("form", {200, 300, 274, 135});
  EXPECT_EQ(machine.registry.Dword(kKey, "Left"), std::nullopt) << "the user may still move it on";
  machine.windowing.ClickCloseBox("form");
  EXPECT_EQ(Stored(), (Rect{200, 300, 274, 135}));
}

TEST_F(SavedPlacement, WhatCannotBeUsedIsBroughtIntoViewOrLeftOut) {
  struct Row {
    const char* why;
    std::int64_t left, top, width, height;
    Rect placed;
  };
  static constexpr Row kRows[] = {
      {"far away", 90000, -90000, 274, 135, {1280 - 274, 0, 274, 135}},
      {"as far as a number goes", 2147483647, -2147483648LL, 274, 135, {1280 - 274, 0, 274, 135}},
      {"a strip too small to take hold of", 1270, 400, 274, 135, {1280 - 274, 400, 274, 135}},
      {"no size", 40, 50, 0, 0, {40, 50, 274, 135}},
      {"a size below zero", 40, 50, -300, 135, {40, 50, 274, 135}},
      {"a size that no window has", 40, 50, 2147483647, 100, {40, 50, 274, 135}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Store(row.left, row.top, row.width, row.height);
    Run run(machine);
    EXPECT_EQ(run.form.WindowBounds(), row.placed);
  }
  machine.registry.RemoveKey(kKey);
  machine.registry.Set(kKey, "Left", RegistryValue::Text("12"));
  machine.registry.Set(kKey, "Top", RegistryValue::Text("abc"));
  Run run(machine);
  EXPECT_EQ(run.form.WindowBounds(), kDesign) << "texts are no numbers";
}

TEST_F(SavedPlacement, APlaceOnAMissingMonitorIsKeptAndComesBackWithIt) {
  Store(2000, 300, 274, 135);
  {
    Run run(machine);
    EXPECT_EQ(run.form.WindowBounds(), (Rect{1280 - 274, 300, 274, 135}));
  }
  EXPECT_EQ(Stored(), (Rect{2000, 300, 274, 135})) << "to bring it into view is no wish";

  Run run(machine);
  machine.screen.monitors.push_back(kSecond);
  machine.windowing.Find("form").top_events->OnDisplayChange();
  EXPECT_EQ(run.form.WindowBounds(), (Rect{2000, 300, 274, 135}));

  machine.screen.monitors.pop_back();
  machine.windowing.Find("form").top_events->OnDisplayChange();
  EXPECT_EQ(run.form.WindowBounds(), (Rect{1280 - 274, 300, 274, 135}));
  machine.windowing.Drag("form", {10, 20});
  machine.screen.monitors.push_back(kSecond);
  machine.windowing.Find("form").top_events->OnDisplayChange();
  EXPECT_EQ(run.form.WindowBounds(), (Rect{10, 20, 274, 135})) << "that is where the user has it";
  EXPECT_EQ(Stored(), (Rect{10, 20, 274, 135}));
}

TEST_F(SavedPlacement, TheSystemMovingItOffAMonitorThatGoesIsNoWish) {
  machine.screen.monitors.push_back(kSecond);
  Run run(machine);
  run.form.SetWindowBounds({2000, 300, 274, 135});
  machine.screen.monitors.pop_back();
  machine.windowing.Place("form", {700, 300, 274, 135});  // before the change is announced
  EXPECT_EQ(Stored(), (Rect{2000, 300, 274, 135}));
  machine.windowing.Find("form").top_events->OnDisplayChange();
  machine.screen.monitors.push_back(kSecond);
  machine.windowing.Find("form").top_events->OnDisplayChange();
  EXPECT_EQ(run.form.WindowBounds(), (Rect{2000, 300, 274, 135}));
}

TEST_F(SavedPlacement, ASizeIsMeantForAResolution) {
  Store(10, 20, 300, 150);
  machine.registry.Set(kKey, "Dpi", RegistryValue::Dword(192));
  Run run(machine);
  EXPECT_EQ(run.form.WindowBounds(), (Rect{10, 20, 150, 75}));
}

TEST_F(SavedPlacement, AFormOfAFixedSizeTakesOnlyItsPlace) {
  Store(10, 20, 500, 600);
  Run run(machine, PlacementSaver::Restores::kPlace);
  EXPECT_EQ(run.form.WindowBounds(), (Rect{10, 20, 274, 135}));
}

TEST_F(SavedPlacement, ARegistryThatRefusesIsNotReported) {
  int reported = 0;
  Run run(machine);
  run.app.SetExceptionHandler([&](std::string_view) { ++reported; });
  for (int call = 1; call <= 6; ++call) {
    machine.notebook.FailCall(call);
    run.form.SetWindowBounds({call, call, 274, 135});
  }
  EXPECT_EQ(reported, 0);
}

}  // namespace
}  // namespace toolkit
