// Opacity, see-through graph, hot keys, docking and placement of the meter window.
#include "tests/meter.h"

namespace {

using platform::Rect;
using Alphas = std::vector<std::uint8_t>;

constexpr platform::KeyCombination kCtrlAltF{'F', false, true, true};
constexpr platform::KeyCombination kCtrlAltD{'D', false, true, true};
constexpr platform::KeyCombination kCtrlShiftQ{'Q', true, true, false};

class Effects : public test::Meter {
 protected:
  platform::memory::WidgetState& TheMeter() { return Widget("T_frmBrisanto"); }
  // What was set since it was last asked for.
  Alphas TakeAlphas() { return std::exchange(TheMeter().alphas, {}); }
  // From one to the other, both included.
  static Alphas Steps(int from, int to) {
    Alphas steps;
    for (int alpha = from; alpha != to; alpha += from < to ? 1 : -1) {
      steps.push_back(static_cast<std::uint8_t>(alpha));
    }
    steps.push_back(static_cast<std::uint8_t>(to));
    return steps;
  }
  void Enter() { User().PointAt("_tlkInterMeter"); }
  void Leave() { User().PointAway(); }
};

TEST_F(Effects, AFreshMeterIsOpaqueAndTheMenuMakesItLetThrough) {
  Run([&] {
    EXPECT_FALSE(TheMeter().alpha);
    for (const std::uint32_t on : {1U, 0U}) {
      Choose("Windows XP Style");
      EXPECT_EQ(TakeAlphas(), Alphas{on == 1 ? std::uint8_t{190} : std::uint8_t{255}});
      EXPECT_EQ(Stored("Transparent2k"), on);
      EXPECT_EQ(Entry("Windows XP Style").checked, on == 1);
    }
    machine.windowing.layered_windows = false;
    TheMeter().alpha.reset();
    Choose("Windows XP Style");
    EXPECT_EQ(Stored("Transparent2k"), 1U) << "without layered windows only the store changes";
    EXPECT_FALSE(TheMeter().alpha);
  });
}

TEST_F(Effects, WhileThePointerIsOnItTheWindowIsOpaque) {
  Set("Transparent2k", 1);
  Run([&] {
    TakeAlphas();
    Enter();
    EXPECT_EQ(TakeAlphas(), Alphas{255});
    User().PointAt("_tlkDLULMeter");
    User().PointAt("T_frmBrisanto");
    EXPECT_EQ(TakeAlphas(), Alphas{}) << "from child to child is no leave";
    Leave();
    EXPECT_EQ(TakeAlphas(), Alphas{190});
    Enter();
    Window().Hide();
    TakeAlphas();
    Scan({});
    EXPECT_EQ(TakeAlphas(), Alphas{190}) << "a leave that nobody reported";
    Window().Show();
    TakeAlphas();
    Scan({});
    EXPECT_EQ(TakeAlphas(), Alphas{255}) << "nor the return after it";
    Leave();
    TakeAlphas();
    for (const char* off : {"AutoTransparentONOFF", "Transparent2k"}) {
      Set(off, 0);
      Enter();
      Leave();
      EXPECT_EQ(TakeAlphas(), Alphas{}) << "both must be on";
      Set(off, 1);
    }
  });
}

TEST_F(Effects, AFadeTakesStepsOfOneWithinTheRange) {
  Set("Transparent2k", 1);
  Set("TransparentFade", 1);
  for (const auto& [ratio, start, enter, leave] :
       {std::tuple{190, Alphas{190}, Steps(190, 255), Steps(255, 190)},
        {255, Alphas{255}, Alphas{255}, Alphas{255}},
        {256, Alphas{255}, Alphas{}, Alphas{}},
        {-2, Alphas{0}, Steps(0, 255), Steps(255, 0)}}) {
    SCOPED_TRACE(ratio);
    Set("Win2kTransparentRatio", ratio);
    Run([&, start = start, enter = enter, leave = leave] {
      EXPECT_EQ(TakeAlphas(), start);
      Enter();
      EXPECT_EQ(TakeAlphas(), enter);
      Leave();
      EXPECT_EQ(TakeAlphas(), leave);
    });
  }
}

TEST_F(Effects, AFadeTurnsWithThePointerAndEndsWithAnotherOpacityAndTheProgram) {
  Set("Transparent2k", 1);
  Set("TransparentFade", 1);
  Run([&] {
    machine.message_loop.steps_when_pending = true;
    // What is set when this happens after so many steps of a fade.
    const auto fade = [&](bool in, int steps, const std::function<void()>& act) {
      TakeAlphas();
      for (int step = 0; step < steps; ++step) Then([] {});
      Then(act);
      in ? Enter() : Leave();
      return TakeAlphas();
    };
    Alphas seen = fade(true, 21, [&] {
      Scan({700, 0});
      Leave();
    });
    EXPECT_EQ(Window().Traffic().RunTotalDL, 700) << "scans go on";
    const int top = *std::max_element(seen.begin(), seen.end());
    EXPECT_LT(top, 255) << "it never got there";
    Alphas expected = Steps(190, top);
    std::ranges::copy(Steps(top - 1, 190), std::back_inserter(expected));
    EXPECT_EQ(seen, expected);
    Enter();
    EXPECT_LT(fade(false, 2, [&] { machine.hot_keys.Press(kCtrlAltD); }).size(), 5U);
    EXPECT_EQ(TheMeter().alpha, 255);
    machine.hot_keys.Press(kCtrlAltD);
    EXPECT_LT(fade(true, 1, [&] { App().Terminate(); }).size(), 5U);
  });
}

TEST_F(Effects, TheGraphWithoutItsBackgroundKeepsBarsLineAndFrame) {
  Run([&] {
    Choose("Custom Transparency");
    EXPECT_TRUE(Entry("Custom Transparency").checked);
    for (const char* mode : {"Graphic", "Numeric", "Graph&&Numeric"}) {
      EXPECT_FALSE(Entry(mode).enabled) << mode;
    }
    Scan({60000, 0});
    ASSERT_TRUE(TheMeter().shape);
    const auto graph = Graph();
    const platform::Colour background = machine.screen.Resolve(platform::colour::kButtonFace);
    const platform::Size size = graph->Extent();
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const bool drawn = graph->Pixel({x, y}) != background;
        ASSERT_EQ(InShape({x + 1, y + 1}), drawn) << x << "," << y;
      }
    }
    EXPECT_TRUE(InShape({0, 60})) << "the window's own frame";
    for (const Rect& part : *TheMeter().shape) {
      EXPECT_TRUE(part.Right() <= 274 && part.Bottom() <= 135) << part.left << "," << part.top;
    }
    EXPECT_TRUE(InShape({100, size.height + 5})) << "the numeric line";

    Window().SetWindowBounds({300, 300, 200, 100});
    EXPECT_TRUE(InShape({199, 50}));

    Choose("Custom Transparency");
    EXPECT_FALSE(TheMeter().shape);
    EXPECT_EQ(Stored("Transparent"), 0U);
    EXPECT_TRUE(Entry("Numeric").enabled);
  });
}

TEST_F(Effects, TheStoredTransparencyComesBackAndIsNotToggledByANewAdapter) {
  Set("Transparent", 1);
  Set("Transparent2k", 1);
  Run([&] {
    EXPECT_TRUE(TheMeter().shape);
    Enter();
    machine.interface_table.AddRow(platform::memory::MakeRow("Second"));
    Scan({});
    EXPECT_TRUE(Entry("Custom Transparency").checked && Entry("Windows XP Style").checked);
    EXPECT_EQ(TheMeter().alpha, 255) << "the pointer is still on it";
    for (const int mode : {2, 1, 0}) {
      Set("WindowMode", mode);
      Window().ApplyDisplaySettings();
      EXPECT_EQ(TheMeter().shape.has_value(), mode != 1) << "the numeric line alone is never cut";
    }
    Leave();
    Set("Win2kTransparentRatio", 100);  // by another program
    machine.interface_table.AddRow(platform::memory::MakeRow("Third"));
    Scan({});
    EXPECT_EQ(TheMeter().alpha, 100);
    Set("Transparent2k", 0);
    machine.interface_table.RemoveRow(1);
    Scan({});
    EXPECT_EQ(TheMeter().alpha, 255);
  });
}

TEST_F(Effects, HotKeysWorkUntilTheProgramEnds) {
  machine.sockets.addresses = {"10.0.0.7"};
  Set("CopyIP", 1);
  Run([&] {
    EXPECT_EQ(std::exchange(machine.clipboard.text, ""), "10.0.0.7") << "as the start does";
    for (const auto& key : {kCtrlAltF, kCtrlAltD, kCtrlShiftQ}) {
      EXPECT_TRUE(machine.hot_keys.Press(key));
    }
    EXPECT_EQ(Stored("Transparent"), 1U);
    EXPECT_EQ(Stored("Transparent2k"), 1U);
    EXPECT_EQ(machine.clipboard.text, "10.0.0.7");
    EXPECT_FALSE(machine.hot_keys.Press({'S', false, true, true})) << "it is only a text";
  });
  EXPECT_EQ(machine.hot_keys.Registered(), 0U);
  machine.hot_keys.taken = {kCtrlAltF};
  Run([&] { EXPECT_TRUE(machine.hot_keys.Press(kCtrlAltD)) << "the others work"; });
  EXPECT_EQ(ErrorLog(), "");
}

TEST_F(Effects, TheMeterDocksAndKeepsItsPlace) {
  const Rect docked{0, 500, 274, 135};
  Run([&] {
    User().Drag("T_frmBrisanto", {9, 500});
    EXPECT_EQ(TheMeter().bounds, docked);
  });
  Run([&] { EXPECT_EQ(TheMeter().bounds, docked); });
  EXPECT_EQ(machine.registry.Dword("Software\\BrisantoNET\\Settings\\MainScreen", "Top"), 500U);
}

}  // namespace
