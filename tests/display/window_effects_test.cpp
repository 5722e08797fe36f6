// Opacity, see-through graph, hot keys, docking and placement of the meter window.
#include <gtest/gtest.h>

#include <numeric>

#include "display/graph/picture.h"
#include "tests/display/meter.h"

namespace {

using platform::Rect;
using test::MeterTest;
using Alphas = std::vector<std::uint8_t>;

constexpr std::uint32_t kOff = 0;
constexpr std::uint32_t kOn = 1;

constexpr platform::KeyCombination kCtrlAltF{'F', false, true, true};
constexpr platform::KeyCombination kCtrlAltD{'D', false, true, true};
constexpr platform::KeyCombination kCtrlShiftQ{'Q', true, true, false};

class Effects : public MeterTest {
 protected:
  platform::memory::WidgetState& Meter() { return Widget("T_frmBrisanto"); }
  // What was set since it was last asked for.
  Alphas TakeAlphas() { return std::exchange(Meter().alphas, {}); }
  // From one to the other, both included.
  static Alphas Steps(int from, int to) {
    Alphas steps;
    for (int alpha = from; alpha != to; alpha += from < to ? 1 : -1) {
      steps.push_back(static_cast<std::uint8_t>(alpha));
    }
    steps.push_back(static_cast<std::uint8_t>(to));
    return steps;
  }
  void Enter() { machine.windowing.PointAt("_tlkInterMeter"); }
  void Leave() { machine.windowing.PointAway(); }
};

TEST_F(Effects, AFreshMeterIsOpaqueAndTheMenuMakesItLetThrough) {
  Run([&] {
    EXPECT_FALSE(Meter().alpha);
    EXPECT_EQ(Stored("Transparent2k"), kOff);
    EXPECT_TRUE(Entry("Graph Transparency Options").enabled);
    EXPECT_TRUE(Entry("Windows XP Style").enabled);
    EXPECT_FALSE(Entry("Windows XP Style").checked);
    Choose("Windows XP Style");
    EXPECT_EQ(TakeAlphas(), Alphas{190});
    EXPECT_EQ(Stored("Transparent2k"), kOn);
    EXPECT_TRUE(Entry("Windows XP Style").checked);
  });
  Run([&] {
    EXPECT_EQ(TakeAlphas(), Alphas{190}) << "as it was left";
    EXPECT_TRUE(Entry("Windows XP Style").checked);
    Choose("Windows XP Style");
    EXPECT_EQ(TakeAlphas(), Alphas{255});
    EXPECT_EQ(Stored("Transparent2k"), kOff);
  });
}

TEST_F(Effects, WhatIsStoredBeyondTheRangeCountsAsItsEnd) {
  Set("Transparent2k", kOn);
  for (const auto& [stored, alpha] :
       {std::pair<std::uint32_t, int>{4000, 255}, {0xFFFFFFFF, 0}, {256, 255}, {0, 0}, {77, 77}}) {
    SCOPED_TRACE(stored);
    Set("Win2kTransparentRatio", stored);
    Run([&] { EXPECT_EQ(Meter().alpha, alpha); });
  }
}

TEST_F(Effects, WhileThePointerIsOnItTheWindowIsOpaque) {
  Set("Transparent2k", kOn);
  Run([&] {
    TakeAlphas();
    Enter();
    EXPECT_EQ(TakeAlphas(), Alphas{255});
    machine.windowing.PointAt("_tlkDLULMeter");
    machine.windowing.PointAt("T_frmBrisanto");
    EXPECT_EQ(TakeAlphas(), Alphas{}) << "from child to child is no leave";
    Leave();
    EXPECT_EQ(TakeAlphas(), Alphas{190});
    Set("AutoTransparentONOFF", kOff);
    Enter();
    Leave();
    Set("AutoTransparentONOFF", kOn);
    Set("Transparent2k", kOff);
    Enter();
    Leave();
    EXPECT_EQ(TakeAlphas(), Alphas{}) << "both must be on";
  });
}

TEST_F(Effects, AFadeTakesStepsOfOne) {
  Set("Transparent2k", kOn);
  Set("TransparentFade", kOn);
  struct Row {
    std::uint32_t ratio;
    Alphas enter, leave;
  };
  const Row rows[] = {
      {190, Steps(190, 255), Steps(255, 190)},
      {255, {255}, {255}},
      {256, {}, {}},
      {0xFFFFFFFE, Steps(0, 255), Steps(255, 0)},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.ratio);
    Set("Win2kTransparentRatio", row.ratio);
    Run([&] {
      TakeAlphas();
      Enter();
      EXPECT_EQ(TakeAlphas(), row.enter);
      Leave();
      EXPECT_EQ(TakeAlphas(), row.leave);
    });
  }
}

TEST_F(Effects, AFadeTurnsWhenThePointerDoesAndScansGoOn) {
  Set("Transparent2k", kOn);
  Set("TransparentFade", kOn);
  Run([&] {
    TakeAlphas();
    machine.message_loop.steps_when_pending = true;
    for (int step = 0; step < 21; ++step) machine.message_loop.Then([] {});
    machine.message_loop.Then([&] { Scan({700, 0}); });
    machine.message_loop.Then([&] { Leave(); });
    Enter();
    const Alphas seen = TakeAlphas();
    EXPECT_EQ(Window().Traffic().RunTotalDL, 700);
    EXPECT_EQ(seen.front(), 190);
    EXPECT_EQ(seen.back(), 190);
    const auto top = std::max_element(seen.begin(), seen.end());
    EXPECT_GT(*top, 190);
    EXPECT_LT(*top, 255) << "it never got there";
    for (std::size_t i = 1; i < seen.size(); ++i) EXPECT_LE(std::abs(seen[i] - seen[i - 1]), 1);
  });
}

TEST_F(Effects, AFadeEndsWithTheProgramAndWithAnotherOpacity) {
  Set("Transparent2k", kOn);
  Set("TransparentFade", kOn);
  Run([&] {
    TakeAlphas();
    machine.message_loop.steps_when_pending = true;
    machine.message_loop.Then([] {});
    machine.message_loop.Then([] {});
    machine.message_loop.Then([&] { machine.hot_keys.Press(kCtrlAltD); });
    Enter();
    EXPECT_EQ(Meter().alpha, 255);
    EXPECT_LT(TakeAlphas().size(), 5U);
    Leave();
    machine.hot_keys.Press(kCtrlAltD);
    TakeAlphas();
    machine.message_loop.Then([] {});
    machine.message_loop.Then([&] { App().Terminate(); });
    Enter();
    EXPECT_LT(TakeAlphas().size(), 5U);
  });
}

TEST_F(Effects, ALeaveThatNobodyReportedIsSeenByTheNextScan) {
  Set("Transparent2k", kOn);
  Run([&] {
    Enter();
    Window().Hide();
    TakeAlphas();
    Scan({});
    EXPECT_EQ(TakeAlphas(), Alphas{190});
  });
}

TEST_F(Effects, WithoutLayeredWindowsOnlyMenuAndStoreChange) {
  machine.windowing.layered_windows = false;
  Run([&] {
    Choose("Windows XP Style");
    EXPECT_EQ(Stored("Transparent2k"), kOn);
    EXPECT_TRUE(Entry("Windows XP Style").checked);
    EXPECT_FALSE(Meter().alpha);
  });
}

// Whether a pixel of the window is part of its shape.
bool Exists(const platform::memory::WidgetState& window, platform::Point at) {
  if (!window.shape) return true;
  return std::any_of(window.shape->begin(), window.shape->end(),
                     [at](const Rect& part) { return part.Contains(at); });
}

TEST_F(Effects, TheGraphWithoutItsBackgroundKeepsBarsLineAndFrame) {
  Run([&] {
    Choose("Custom Transparency");
    EXPECT_EQ(Stored("Transparent"), kOn);
    EXPECT_TRUE(Entry("Custom Transparency").checked);
    for (const char* mode : {"Graphic", "Numeric", "Graph&&Numeric"}) {
      EXPECT_FALSE(Entry(mode).enabled) << mode;
    }
    Scan({60000, 0});
    ASSERT_TRUE(Meter().shape);
    const auto graph = Graph();
    const platform::Colour background = machine.screen.Resolve(platform::colour::kButtonFace);
    const platform::Size size = graph->Extent();
    int visible = 0;
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const bool drawn = graph->Pixel({x, y}) != background;
        visible += drawn ? 1 : 0;
        ASSERT_EQ(Exists(Meter(), {x + 1, y + 1}), drawn) << x << "," << y;
      }
    }
    EXPECT_GT(visible, 2 * (size.width + size.height)) << "more than the frame";
    EXPECT_TRUE(Exists(Meter(), {0, 60})) << "the window's own frame";
    EXPECT_TRUE(Exists(Meter(), {100, size.height + 5})) << "the numeric line";

    const int changes = Meter().shape_changes;
    Window().SetWindowBounds({300, 300, 200, 100});
    EXPECT_GT(Meter().shape_changes, changes);
    EXPECT_TRUE(Exists(Meter(), {199, 50}));

    Choose("Custom Transparency");
    EXPECT_FALSE(Meter().shape);
    EXPECT_EQ(Stored("Transparent"), kOff);
    EXPECT_TRUE(Entry("Numeric").enabled);
  });
}

TEST_F(Effects, TheStoredTransparencyComesBackAndIsNotToggledByANewAdapter) {
  Set("Transparent", kOn);
  Set("Transparent2k", kOn);
  Run([&] {
    EXPECT_TRUE(Meter().shape);
    EXPECT_TRUE(Entry("Custom Transparency").checked);
    Enter();
    machine.interface_table.AddRow(platform::memory::MakeRow("Second"));
    Scan({});
    EXPECT_TRUE(Meter().shape);
    EXPECT_TRUE(Entry("Custom Transparency").checked);
    EXPECT_TRUE(Entry("Windows XP Style").checked);
    EXPECT_EQ(Meter().alpha, 255) << "the pointer is still on it";
    EXPECT_EQ(Stored("Transparent"), kOn);
  });
}

TEST_F(Effects, TheNumericLineAloneIsNeverCut) {
  Set("WindowMode", std::uint32_t{1});
  Run([&] {
    EXPECT_FALSE(Entry("Custom Transparency").enabled);
    machine.hot_keys.Press(kCtrlAltF);  // works all the same
    Scan({});
    EXPECT_EQ(Stored("Transparent"), kOn);
    EXPECT_FALSE(Meter().shape);
  });
}

TEST_F(Effects, HotKeysWorkUntilTheProgramEnds) {
  machine.sockets.addresses = {"10.0.0.7"};
  Run([&] {
    EXPECT_TRUE(machine.hot_keys.Press(kCtrlAltF));
    EXPECT_EQ(Stored("Transparent"), kOn);
    EXPECT_TRUE(machine.hot_keys.Press(kCtrlAltD));
    EXPECT_EQ(Stored("Transparent2k"), kOn);
    machine.clipboard.text.clear();
    EXPECT_TRUE(machine.hot_keys.Press(kCtrlShiftQ));
    EXPECT_EQ(machine.clipboard.text, "10.0.0.7");
    EXPECT_FALSE(machine.hot_keys.Press({'S', false, true, true})) << "it is only a text";
    EXPECT_EQ(Entry("Custom Transparency").shortcut, "Ctrl+Alt+F");
    EXPECT_EQ(Entry("Windows XP Style").shortcut, "Ctrl+Alt+D");
  });
  EXPECT_EQ(machine.hot_keys.Registered(), 0U);
  machine.hot_keys.taken = {kCtrlAltF};
  Run([&] { EXPECT_TRUE(machine.hot_keys.Press(kCtrlAltD)) << "the others work"; });
  EXPECT_FALSE(machine.files.BytesBesideProgram("err.log"));
}

TEST_F(Effects, TheMeterDocksAndKeepsItsPlace) {
  Run([&] {
    machine.windowing.Drag("T_frmBrisanto", {9, 500});
    EXPECT_EQ(Meter().bounds, (Rect{0, 500, 274, 135}));
  });
  Set("FormMagnet", kOff);
  Run([&] {
    EXPECT_EQ(Meter().bounds, (Rect{0, 500, 274, 135}));
    machine.windowing.Drag("T_frmBrisanto", {9, 600});
    EXPECT_EQ(Meter().bounds, (Rect{9, 600, 274, 135}));
  });
  EXPECT_EQ(machine.registry.Dword("Software\\BrisantoNET\\Settings\\MainScreen", "Left"), 9U);
}

TEST_F(Effects, HelpOpensThatOfTheLanguageOrElseTheEnglishOne) {
  machine.files.PutBesideProgram("Help\\index.html", "<html>");
  machine.files.PutBesideProgram("Help\\German\\index.html", "<html>");
  Run([&] {
    for (const char* language : {"", "German", "Own"}) {
      Set("Language", std::string(language));
      Choose("Help Contents");
    }
  });
  ASSERT_EQ(machine.shell.opened.size(), 3U);
  EXPECT_TRUE(machine.shell.opened[0].ends_with("\\Help\\index.html"));
  EXPECT_TRUE(machine.shell.opened[1].ends_with("\\Help\\German\\index.html"));
  EXPECT_TRUE(machine.shell.opened[2].ends_with("\\Help\\index.html"));
}

}  // namespace
