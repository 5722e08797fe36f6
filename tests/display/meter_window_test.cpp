// The window of the meter, its modes and its menu.
#include "tests/meter.h"

namespace {

using platform::Rect;
using platform::memory::MakeRow;

constexpr const char* kMeter = "T_frmBrisanto";

class MeterWindow : public test::Meter {
 protected:
  Rect At() { return Widget(kMeter).bounds; }
};

TEST_F(MeterWindow, StartsAsABareTopmostToolWindowAndIsSizedWithinItsLimits) {
  Run([&] {
    const auto& window = Widget(kMeter);
    EXPECT_TRUE(window.params.bare_popup && window.visible && window.topmost);
    EXPECT_EQ(window.params.frame, platform::Frame::kSizeableTool);
    EXPECT_EQ(window.text, "Korvane Tremolux");
    EXPECT_EQ(window.shown_with, platform::Activation::kLeaveFocus);
    EXPECT_FALSE(User().taskbar_button);
    EXPECT_EQ(At(), (Rect{761, 128, 274, 135}));
    User().Place(kMeter, {0, 0, 10, 10});
    EXPECT_EQ(At(), (Rect{0, 0, 150, 25}));
    User().Place(kMeter, {0, 0, 1000, 1000});
    EXPECT_EQ(At(), (Rect{0, 0, 350, 200}));
    for (const int times : {2, 1}) {
      User().ChangeDpi(kMeter, 96 * times, {761, 128, 274 * times, 135 * times});
      EXPECT_EQ(At(), (Rect{761, 128, 274 * times, 135 * times})) << "its limits grow with it";
    }
    Window().Window().SetSizeLimits({}, {});  // the narrow widths are those of other resolutions
    struct Row {
      int width, points;
    };
    for (const Row& row : {Row{125, 6}, Row{126, 7}, Row{175, 7}, Row{176, 8}}) {
      Window().SetWindowBounds({0, 0, row.width, 100});
      EXPECT_EQ(Widget("_tlkDLULMeter").font.height, (row.points * 96 + 36) / 72) << row.width;
    }
    for (const char* name : {"_tlkInterMeter", "_tlkDLULMeter"}) {
      for (const bool pressed : {false, true}) User().MoveMouse(name, {5, 5}, pressed);
    }
    EXPECT_EQ(window.drags, 2);
  });
}

TEST_F(MeterWindow, SwitchesBetweenItsThreeModesAndStartsInTheStoredOne) {
  struct Row {
    const char* choice;
    std::uint32_t stored;
    bool graph, line;
  };
  const auto expect = [&](const Row& row) {
    EXPECT_EQ(Widget("_tlkInterMeter").visible, row.graph);
    EXPECT_EQ(Widget("pnlContain").visible, row.line);
    for (const std::string mode : {"Graphic", "Numeric", "Graph&&Numeric"}) {
      EXPECT_EQ(Entry(mode).checked, mode == row.choice) << mode;
    }
    EXPECT_EQ(Entry("Custom Transparency").enabled, row.graph);
    const int line_height = row.graph ? 17 : Widget(kMeter).ClientSize().height;
    EXPECT_TRUE(!row.line || Widget("pnlContain").bounds.height == line_height);
  };
  constexpr Row kNumeric{"Numeric", 1, false, true};
  for (const Row& row :
       {kNumeric, Row{"Graphic", 0, true, false}, kNumeric, Row{"Graph&&Numeric", 2, true, true}}) {
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
    expect({"Graph&&Numeric", 3, true, true});
    EXPECT_EQ(Stored("WindowMode"), 3U) << "a mode that does not exist changes nothing";
  });
}

TEST_F(MeterWindow, AlwaysOnTopIsToggledStoredAndComesBackAfterAFullScreenProgram) {
  Run([&] {
    Choose("DL-UL Statistics");
    const auto& other = Widget("T_frmConnInfo");
    auto& meter = Widget(kMeter);
    for (const bool scan : {false, true}) {
      meter.topmost = false;
      scan ? Scan({}) : meter.top_events->OnDisplayChange();
      EXPECT_TRUE(meter.topmost && other.topmost);
    }
    Choose("Always on Top");
    EXPECT_EQ(Stored("AlwaysTopOn"), 0U);
    Scan({});
    EXPECT_FALSE(meter.topmost || other.topmost);
  });
  Run([&] {
    EXPECT_FALSE(Entry("Always on Top").checked || Widget(kMeter).topmost);
    Choose("DL-UL Statistics");
    EXPECT_FALSE(Widget("T_frmConnInfo").topmost);
    User().Press("Button2");
    Choose("Always on Top");
    Choose("Show / Hide Graph");
    ChooseInTray("DL-UL Statistics");
    EXPECT_TRUE(Widget("T_frmConnInfo").topmost) << "the meter comes back above it";
  });
}

// Line by line: [tick or dot] text, shortcut, {picture}, (disabled) and hint.
std::string Described(const std::vector<platform::MenuEntry>& entries, const std::string& margin) {
  std::string text;
  for (const platform::MenuEntry& entry : entries) {
    text += margin;
    if (entry.separator) {
      text += "---\n";
      continue;
    }
    if (entry.checked) text += entry.radio ? "o " : "x ";
    text += entry.text;
    if (!entry.shortcut.empty()) text += " [" + entry.shortcut + "]";
    if (entry.keys.virtual_key != 0)
      text += std::string(" <") + static_cast<char>(entry.keys.virtual_key) + ">";
    if (entry.image >= 0) text += " {" + std::to_string(entry.image) + "}";
    if (!entry.enabled) text += " (off)";
    if (!entry.hint.empty()) text += " \"" + entry.hint + "\"";
    text += "\n" + Described(entry.children, margin + "  ");
  }
  return text;
}

TEST_F(MeterWindow, TheMenuIsAsItIs) {
  machine.interface_table.AddRow(MakeRow("Fish & Chips"));
  Set("ethernet", 0);
  Run([&] {
    Choose("");
    EXPECT_EQ("\n" + Described(machine.menus.last, ""), R"(
DL-UL Statistics {0}
Connection Statistics {2}
  Ethernet {2}
  Fish && Chips {2}
Connection Sources {3}
  Ethernet
  x Fish && Chips
---
Graph Options {1}
  x Always on Top
  Show / Hide Graph
  ---
  Graphic
  Numeric
  o Graph&&Numeric
  ---
  Clear Graph
  Graph Transparency Options "ShortCut [ Ctrl+Alt+S ]"
    Windows XP Style [Ctrl+Alt+D] <D>
    Custom Transparency [Ctrl+Alt+F] <F>
Settings... {4}
---
Help {5}
  Help Contents
  About Korvane Tremolux
---
Exit {6}
)");
  });
}

TEST_F(MeterWindow, AdaptersThatComeAreListedAndCountedAndStayInTheirWindow) {
  const auto total = [&] { return Widget("lblInfoTotalDL").text; };
  Run([&] {
    Scan({500, 100});
    platform::InterfaceRow row = MakeRow("Fish & Chips");
    row.dwInOctets = 4000000000U;
    machine.interface_table.AddRow(row);
    Scan({700, 200});
    EXPECT_EQ(Window().Traffic().RunTotalDL, 500) << "the counters begin anew with this scan";
    Scan({300, 100});
    machine.interface_table.rows[0].dwInOctets = 5;  // its driver began anew
    Widget(kMeter).top_events->OnResume();
    Scan({100, 50});
    EXPECT_EQ(Window().Traffic().RunTotalDL, 900);
    Then([&] {
      EXPECT_EQ(Widget("T_frmSpecificConnInfo").text, "Fish & Chips");
      machine.interface_table.AddTraffic(1, 4096, 10);
      Scan({1024, 10});
      EXPECT_EQ(total(), "4");
      machine.interface_table.rows.pop_back();
      Scan({});
      EXPECT_EQ(total(), "4") << "what it has moved stays to be seen";
      User().PressEsc("T_frmSpecificConnInfo");
    });
    Choose("Fish && Chips");
  });
}

TEST_F(MeterWindow, OtherColoursOfTheSystemShowAtOnce) {
  Run([&] {
    constexpr platform::Colour kOther = 0x123456;
    machine.screen.scheme[15] = kOther;  // that of buttons
    User().Tell(&platform::TopWindowEvents::OnSettingChange);
    const auto pixels = Pixels(*Graph());
    EXPECT_GT(std::count(pixels.begin(), pixels.end(), kOther), 1000);
    EXPECT_GT(std::count(pixels.begin(), pixels.end(), platform::colour::kWhite), 10)
        << "black letters of the scale could not be read on it";
  });
}

TEST_F(MeterWindow, HelpOpensThatOfTheLanguageOrElseTheEnglishOne) {
  machine.files.PutBesideProgram("Help\\index.html", "<html>");
  machine.files.PutBesideProgram("Help\\German\\index.html", "<html>");
  Run([&] {
    for (const char* language : {"", "German", "Own"}) {
      Set("Language", std::string(language));
      Choose("Help Contents");
    }
  });
  const std::string help = machine.files.ProgramFolder() + "Help\\";
  EXPECT_EQ(machine.shell.opened,
            (std::vector<std::string>{help + "index.html", help + "German\\index.html",
                                      help + "index.html"}));
}

}  // namespace
