// The menu of the meter window and of the tray icon.
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Texts = std::vector<std::string>;

using Menu = ProgramTest;

TEST_F(Menu, HasItsItemsInTheirOrder) {
  Meter& meter = Start();
  OpenMenu menu = meter.Menu();
  EXPECT_EQ(menu.Descriptions(),
            (Texts{"DL-UL Statistics", "Connection Statistics [>]", "Connection Sources [>]", "-",
                   "Graph Options [>]", "Settings...", "-", "Help [>]", "-", "Exit"}));
  EXPECT_EQ(menu.Descriptions({"Graph Options"}),
            (Texts{"Always on Top [checked]", "Show / Hide Graph", "-", "Graphic [radio]",
                   "Numeric [radio]", "Graph&&Numeric [radio] [checked]", "-", "Clear Graph",
                   "Graph Transparency Options [>]"}));
  EXPECT_EQ(menu.Items({"Help"}).size(), 2U);
  menu.Leave();
}

TEST_F(Menu, ListsTheAdaptersInBothSubmenus) {
  Texts statistics;
  Texts sources;
  for (const AdapterRow& adapter : ReadAdapters()) {
    if (adapter.name.empty() || adapter.name == "ms tcp loopback interface") continue;
    statistics.push_back(adapter.name);
    sources.push_back(adapter.name + " [checked]");
  }
  Meter& meter = Start();
  OpenMenu menu = meter.Menu();
  const auto lower_case = [](Texts texts) {
    for (std::string& text : texts) {
      for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return texts;
  };
  EXPECT_EQ(lower_case(menu.Descriptions({"Connection Statistics"})), statistics);
  EXPECT_EQ(lower_case(menu.Descriptions({"Connection Sources"})), sources);
  menu.Leave();
}

TEST_F(Menu, AClickOnASourceTicksItOffAndOnAgain) {
  Meter& meter = Start();
  std::string adapter;
  {
    OpenMenu menu = meter.Menu();
    adapter = menu.Items({"Connection Sources"}).at(0).text;
    menu.Choose({"Connection Sources", adapter});
  }
  const std::string flag = ReadAdapters().at(0).name;
  for (const bool included : {false, true}) {
    Await("the flag", [&] { return Setting(flag) == (included ? 1U : 0U); });
    OpenMenu menu = meter.Menu();
    EXPECT_EQ(menu.Find({"Connection Sources", adapter}).checked, included);
    menu.Choose({"Connection Sources", adapter});
  }
}

TEST_F(Menu, TheThreeModesShowWhatTheySayAndSurviveTheProgram) {
  struct Row {
    const char* item;
    std::uint32_t mode;
    bool graph;
    bool line;
  };
  static constexpr Row kRows[] = {
      {"Graphic", 0, true, false},
      {"Numeric", 1, false, true},
      {"Graph&&Numeric", 2, true, true},
  };
  Meter* meter = &Start();
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.item);
    meter->Choose({"Graph Options", row.item});
    for (const char* when : {"at once", "after a restart"}) {
      SCOPED_TRACE(when);
      Await("the mode", [&] {
        return (::IsWindowVisible(meter->graph()) != FALSE) == row.graph &&
               (::IsWindowVisible(meter->line()) != FALSE) == row.line;
      });
      EXPECT_EQ(Setting("WindowMode"), row.mode);
      RECT client{};
      ::GetClientRect(meter->window(), &client);
      const LONG panel = row.graph ? meter->Scaled(17) : HeightOf(client);
      if (row.line) {
        Await("the line in its room", [&] { return HeightOf(AreaOf(meter->panel())) == panel; });
      }
      if (row.graph) {
        // The program hides the line first and then gives its room to the graph.
        Await("the graph in all the room that is left", [&] {
          return HeightOf(AreaOf(meter->graph())) == HeightOf(client) - (row.line ? panel : 0);
        });
      }
      OpenMenu menu = meter->Menu();
      for (const Row& other : kRows) {
        EXPECT_EQ(menu.Find({"Graph Options", other.item}).checked, other.mode == row.mode)
            << other.item;
      }
      menu.Leave();
      if (when == std::string("at once")) meter = &Start();
    }
  }
}

TEST_F(Menu, OpensFromTheTrayIconAndClosesWithAClickElsewhere) {
  Meter& meter = Start();
  AwaitScans();  // the icon comes a moment after the window
  RightClick(MiddleOf(meter.TrayArea()));
  {
    OpenMenu menu(meter.program().id());
    EXPECT_EQ(menu.Items().back().text, "Exit");
    Click({5, 5});
    Await("the menu to close", [&] { return !OpenMenu::Any(meter.program().id()); });
  }
  // A click that ends a menu can lose its release; the next one mends that.
  Click({5, 5});
  EXPECT_TRUE(meter.program().Running());
}

TEST_F(Menu, AChoiceLeavesTheKeyboardToTheProgramThatHasIt) {
  Meter& meter = Start();
  AwaitScans();  // the icon comes a moment after the window
  const HWND work = ::CreateWindowExW(0, L"EDIT", L"work", WS_POPUP | WS_VISIBLE, 20, 600, 200, 50,
                                      nullptr, nullptr, nullptr, nullptr);
  ::SetForegroundWindow(work);
  Await("the work in front", [work] { return ::GetForegroundWindow() == work; });
  RightClick(MiddleOf(meter.TrayArea()));
  OpenMenu(meter.program().id()).Choose({"Graph Options", "Clear Graph"});
  EXPECT_TRUE(Comes([work] { return ::GetForegroundWindow() == work; }));
  ::DestroyWindow(work);
}

TEST_F(Menu, ScansGoOnWhileItIsOpen) {
  Meter& meter = Start();
  OpenMenu menu = meter.Menu();
  AwaitScans(2);
  EXPECT_TRUE(OpenMenu::Any(meter.program().id()));
  menu.Leave();
}

}  // namespace
}  // namespace desktop
