#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/display/meter.h"

namespace {

using platform::memory::MakeRow;
using test::MeterTest;

class Meter : public MeterTest {};

TEST_F(Meter, StartsAsABareTopmostToolWindowWithoutTakingTheFocus) {
  Run([&] {
    const platform::memory::WidgetState& window = Widget("T_frmBrisanto");
    EXPECT_TRUE(window.params.bare_popup);
    EXPECT_EQ(window.params.frame, platform::Frame::kSizeableTool);
    EXPECT_EQ(window.bounds, (platform::Rect{761, 128, 274, 135}));
    EXPECT_EQ(window.text, "Korvane Tremolux");
    EXPECT_TRUE(window.visible);
    EXPECT_TRUE(window.topmost);
    EXPECT_EQ(window.shown_with, platform::Activation::kLeaveFocus);
    EXPECT_FALSE(machine.windowing.taskbar_button);
    EXPECT_EQ(machine.windowing.application_title, "Korvane Tremolux");
  });
  EXPECT_FALSE(machine.windowing.Exists("T_frmBrisanto"));
  EXPECT_EQ(machine.timers.Running(), 0);
}

TEST_F(Meter, CannotBeSizedBeyondItsLimits) {
  Run([&] {
    machine.windowing.Place("T_frmBrisanto", {0, 0, 10, 10});
    EXPECT_EQ(Widget("T_frmBrisanto").bounds, (platform::Rect{0, 0, 150, 25}));
    machine.windowing.Place("T_frmBrisanto", {0, 0, 1000, 1000});
    EXPECT_EQ(Widget("T_frmBrisanto").bounds, (platform::Rect{0, 0, 350, 200}));
  });
}

TEST_F(Meter, KeepsItsLookOnAMonitorOfAnotherResolution) {
  Run([&] {
    machine.windowing.ChangeDpi("T_frmBrisanto", 192, {761, 128, 548, 270});
    EXPECT_EQ(Widget("T_frmBrisanto").bounds, (platform::Rect{761, 128, 548, 270}));
    machine.windowing.ChangeDpi("T_frmBrisanto", 96, {761, 128, 274, 135});
    EXPECT_EQ(Widget("T_frmBrisanto").bounds, (platform::Rect{761, 128, 274, 135}));
  });
}

TEST_F(Meter, TheFontOfTheLineFollowsTheWidth) {
  Run([&] {
    Window().Window().SetSizeLimits({}, {});  // the narrow widths are those of other resolutions
    struct Row {
      int width;
      int points;
    };
    for (const Row& row : {Row{125, 6}, Row{126, 7}, Row{175, 7}, Row{176, 8}}) {
      SCOPED_TRACE(row.width);
      Window().SetWindowBounds({0, 0, row.width, 100});
      EXPECT_EQ(Widget("_tlkDLULMeter").font.height, (row.points * 96 + 36) / 72);
    }
  });
}

TEST_F(Meter, SwitchesBetweenItsThreeModesAndStartsInTheStoredOne) {
  struct Row {
    const char* choice;
    std::uint32_t stored;
    bool graph;
    bool line;
    bool may_be_transparent;
  };
  static constexpr Row kRows[] = {{"Graphic", 0, true, false, true},
                                  {"Numeric", 1, false, true, false},
                                  {"Graph&&Numeric", 2, true, true, true}};
  const auto expect = [&](const Row& row) {
    EXPECT_EQ(Widget("_tlkInterMeter").visible, row.graph);
    EXPECT_EQ(Widget("pnlContain").visible, row.line);
    EXPECT_TRUE(Entry(row.choice).checked);
    EXPECT_TRUE(Entry(row.choice).radio);
    EXPECT_EQ(Entry("Custom Transparency").enabled, row.may_be_transparent);
    const platform::Size client = Widget("T_frmBrisanto").ClientSize();
    const int line_height = row.graph ? 17 : client.height;
    EXPECT_EQ(Widget("pnlContain").bounds.height, row.line ? line_height : 17);
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.choice);
    Run([&] {
      Choose(row.choice);
      EXPECT_EQ(Stored("WindowMode"), row.stored);
      expect(row);
    });
    Run([&] { expect(row); });  // the next start
  }
  Set("WindowMode", 3);
  Run([&] {
    EXPECT_TRUE(Entry("Graph&&Numeric").checked) << "a mode that does not exist changes nothing";
    EXPECT_TRUE(Widget("_tlkInterMeter").visible);
    EXPECT_EQ(Stored("WindowMode"), 3U);
  });
}

TEST_F(Meter, AlwaysOnTopIsToggledStoredAndComesBackAfterAFullScreenProgram) {
  Run([&] {
    Widget("T_frmBrisanto").topmost = false;
    Widget("T_frmBrisanto").top_events->OnDisplayChange();
    EXPECT_TRUE(Widget("T_frmBrisanto").topmost);
    Widget("T_frmBrisanto").topmost = false;
    Scan({});
    EXPECT_TRUE(Widget("T_frmBrisanto").topmost);
    Choose("DL-UL Statistics");
    EXPECT_TRUE(Widget("T_frmConnInfo").topmost) << "or else the meter would cover it";

    Choose("Always on Top");
    EXPECT_FALSE(Widget("T_frmBrisanto").topmost || Widget("T_frmConnInfo").topmost);
    EXPECT_EQ(Stored("AlwaysTopOn"), 0U);
    Scan({});
    EXPECT_FALSE(Widget("T_frmBrisanto").topmost);
  });
  Run([&] {
    EXPECT_FALSE(Entry("Always on Top").checked);
    Choose("Always on Top");
    Choose("Show / Hide Graph");
    machine.menus.WillChoose("DL-UL Statistics");
    machine.notification_area.RightClick({900, 700});
    EXPECT_TRUE(Widget("T_frmConnInfo").topmost) << "the meter would cover it when it comes back";
  });
}

TEST_F(Meter, IsDraggedByGraphAndLine) {
  Run([&] {
    for (const char* name : {"_tlkInterMeter", "_tlkDLULMeter"}) {
      machine.windowing.MoveMouse(name, {5, 5}, false);
      machine.windowing.MoveMouse(name, {6, 5}, true);
    }
    EXPECT_EQ(Widget("T_frmBrisanto").drags, 2);
  });
}

TEST_F(Meter, TheMenuHasItsItemsInTheirOrder) {
  Run([&] {
    Choose("");
    const auto texts = [](const std::vector<platform::MenuEntry>& entries) {
      std::string joined;
      for (const platform::MenuEntry& entry : entries) {
        joined += entry.separator ? "-" : entry.text;
        joined += '/';
      }
      return joined;
    };
    const std::vector<platform::MenuEntry>& menu = machine.menus.last;
    EXPECT_EQ(texts(menu),
              "DL-UL Statistics/Connection Statistics/Connection Sources/-/Graph Options/"
              "Settings.../-/Help/-/Exit/");
    EXPECT_EQ(texts(menu[4].children),
              "Always on Top/Show / Hide Graph/-/Graphic/Numeric/Graph&&Numeric/-/Clear Graph/"
              "Graph Transparency Options/");
    const platform::MenuEntry transparency = menu[4].children.back();
    EXPECT_EQ(transparency.hint, "ShortCut [ Ctrl+Alt+S ]");
    EXPECT_EQ(transparency.children[0].text, "Windows XP Style");
    EXPECT_EQ(transparency.children[0].shortcut, "Ctrl+Alt+D");
    EXPECT_EQ(transparency.children[1].shortcut, "Ctrl+Alt+F");
  });
}

TEST_F(Meter, AdaptersThatComeAreListedAndCountedWithoutASpike) {
  Run([&] {
    Scan({500, 100});
    platform::InterfaceRow row = MakeRow("Fish & Chips");
    row.dwInOctets = 4000000000U;
    machine.interface_table.AddRow(row);
    Set("SOM1", 1);
    Scan({700, 200});
    Choose("");
    const std::vector<platform::MenuEntry>& sources = machine.menus.last[2].children;
    ASSERT_EQ(sources.size(), 2U);
    EXPECT_EQ(sources[1].text, "Fish && Chips");
    EXPECT_TRUE(sources[1].checked);
    EXPECT_EQ(Window().Traffic().RunTotalDL, 500) << "the counters begin anew with this scan";
    Scan({300, 100});
    EXPECT_EQ(Window().Traffic().RunTotalDL, 800);
    EXPECT_EQ(Stored("ExecuteTime"), 2U);
  });
}

TEST_F(Meter, AnAdapterThatIsUntickedNoLongerCounts) {
  Run([&] {
    machine.menus.user = [&](const std::vector<platform::MenuEntry>& menu, platform::MenuPainter&) {
      return menu[2].children[0].id;
    };
    machine.windowing.RightClick("_tlkDLULMeter");
    EXPECT_EQ(Stored("ethernet"), 0U);
    Scan({500, 100});
    EXPECT_EQ(Window().Traffic().RunTotalDL, 0);
  });
}

TEST_F(Meter, ABytesCountedAtTheWakeUpAreNoTraffic) {
  Run([&] {
    machine.interface_table.rows[0].dwInOctets = 5;  // the driver began anew
    Widget("T_frmBrisanto").top_events->OnResume();
    Scan({100, 50});
    EXPECT_EQ(Window().Traffic().RunTotalDL, 100);
  });
}

TEST_F(Meter, ThePasswordIsAskedForWheneverThePreferencesAreWanted) {
  Set("zdP1", 1);
  Set("zdP", "Secret");
  Run([&] {
    platform::TopWindowParams params;
    params.name = "T_frmPreferences";
    toolkit::Form preferences(App(), params);
    int opened = 0;
    Window().SetPreferences([&](std::string_view) {
      ++opened;
      preferences.Show();
    });
    const auto refuse = [&] { machine.windowing.Press("CancelButton"); };
    machine.message_loop.Then(refuse);
    Choose("Settings...");
    EXPECT_EQ(opened, 0);
    for (const int times : {1, 2}) {
      machine.message_loop.Then([&] { machine.windowing.Type("PassEdit", "Secret"); });
      Choose("Settings...");
      EXPECT_EQ(opened, times) << "open already, they are raised";
      machine.message_loop.Then(refuse);
      Choose("Settings...");
      EXPECT_EQ(opened, times);
    }
    preferences.Hide();
    machine.message_loop.Then(refuse);
    Choose("Settings...");
    EXPECT_EQ(opened, 2);
  });
  EXPECT_EQ(machine.message_loop.starved, 0);
}

TEST_F(Meter, AFailedStartIsLoggedAndMadeGoodByTheNextScan) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    platform::memory::Machine fresh;
    fresh.interface_table.AddRow(MakeRow("Ethernet"));
    fresh.notebook.FailCall(call);
    toolkit::Application app(fresh.Platform());
    display::T_frmBrisanto window(app);
    const bool failed = !fresh.notebook.FailurePending();
    fresh.notebook.FailCall(0);
    fresh.timers.Advance(1000);
    fresh.interface_table.AddTraffic(0, 300, 200);
    fresh.timers.Advance(1000);
    ASSERT_EQ(window.Traffic().RunTotalDL, 300);
    ASSERT_TRUE(fresh.windowing.Find("T_frmBrisanto").visible);
    if (!failed) break;
  }
}

}  // namespace
