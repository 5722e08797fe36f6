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
    for (const auto& [width, pixels] : {std::pair{125, 8}, {126, 9}, {175, 9}, {176, 11}}) {
      Window().SetWindowBounds({0, 0, width, 100});
      EXPECT_EQ(Widget("_tlkDLULMeter").font.height, pixels) << width;
    }
    for (const char* name : {"_tlkInterMeter", "_tlkDLULMeter"}) {
      for (const bool pressed : {false, true}) User().MoveMouse(name, {5, 5}, pressed);
    }
    EXPECT_EQ(window.drags, 2);
  });
}

TEST_F(MeterWindow, SwitchesBetweenItsThreeModesAndStartsInTheStoredOne) {
  const std::string modes[] = {"Graphic", "Numeric", "Graph&&Numeric"};
  const auto expect = [&](std::size_t mode) {
    const bool graph = mode != 1;
    EXPECT_EQ(Widget("_tlkInterMeter").visible, graph);
    EXPECT_EQ(Widget("pnlContain").visible, mode != 0);
    for (const std::string& other : modes) {
      EXPECT_EQ(Entry(other).checked, other == modes[mode]) << other;
    }
    EXPECT_EQ(Entry("Custom Transparency").enabled, graph);
    platform::Size line = Widget(kMeter).ClientSize();
    if (graph) line.height = 17;
    const Rect& at = Widget("pnlContain").bounds;
    EXPECT_TRUE(mode == 0 || line == (platform::Size{at.width, at.height}));
  };
  for (const std::size_t mode : {1U, 0U, 1U, 2U}) {
    SCOPED_TRACE(modes[mode]);
    Run([&] {
      Choose(modes[mode]);
      EXPECT_EQ(Stored("WindowMode"), mode);
      expect(mode);
    });
    Run([&] { expect(mode); });  // the next start
  }
  Set("WindowMode", 3);
  Run([&] { expect(2); });
  EXPECT_EQ(Stored("WindowMode"), 3U) << "a mode that does not exist changes nothing";
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
    User().PressEnter("T_frmConnInfo");
    EXPECT_FALSE(User().Exists("T_frmConnInfo"));
    Choose("Always on Top");
    Choose("Show / Hide Graph");
    ChooseInTray("DL-UL Statistics");
    EXPECT_TRUE(Widget("T_frmConnInfo").topmost) << "the meter comes back above it";
  });
}

// Line by line: tick or dot, text (that of a separator is "-"), [shortcut], <key>, {picture}, (off)
// and hint.
std::string Described(const std::vector<platform::MenuEntry>& entries, const std::string& margin) {
  std::string text;
  for (const platform::MenuEntry& entry : entries) {
    const auto add = [&text](bool has, const std::string& part) { text += has ? part : ""; };
    text += margin;
    add(entry.checked, entry.radio ? "o " : "x ");
    text += entry.text;
    add(!entry.shortcut.empty(), " [" + entry.shortcut + "]");
    const auto key = static_cast<char>(entry.keys.virtual_key);
    add(key != 0, std::string(" <") + key + ">");
    add(entry.image >= 0, " {" + std::to_string(entry.image) + "}");
    add(!entry.enabled, " (off)");
    add(!entry.hint.empty(), " \"" + entry.hint + "\"");
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
-
Graph Options {1}
  x Always on Top
  Show / Hide Graph
  -
  Graphic
  Numeric
  o Graph&&Numeric
  -
  Clear Graph
  Graph Transparency Options "ShortCut [ Ctrl+Alt+S ]"
    Windows XP Style [Ctrl+Alt+D] <D>
    Custom Transparency [Ctrl+Alt+F] <F>
Settings... {4}
-
Help {5}
  Help Contents
  About Korvane Tremolux
-
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
