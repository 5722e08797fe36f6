#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "tests/preferences/preferences_world.h"
#include "toolkit/controls/layout.h"

namespace {

class Preferences : public test::PreferencesTest {
 protected:
  std::string Page() {
    for (const char* page : {"General", "GraphColors", "GraphGrids", "GraphOthers", "TextColors",
                             "TextOther", "SpeedUp", "Admin", "Interfaces", "BandwidthAlert",
                             "Notification", "Other", "ResetSettings"}) {
      if (Widget(page).OnScreen()) return page;
    }
    return "";
  }
};

TEST_F(Preferences, EachItemOfTheTreeLeadsToItsPage) {
  struct Row {
    const char* item;
    const char* page;
    const char* why;
  };
  static constexpr Row kRows[] = {
      {"Graph Colors", "GraphColors", ""},
      {"Graph", "GraphColors", "a heading leaves the page"},
      {"Graph Grids", "GraphGrids", ""},
      {"Graph Other", "GraphOthers", ""},
      {"Numeric", "GraphOthers", "a heading"},
      {"Numeric Colors", "TextColors", ""},
      {"Numeric Other", "TextOther", ""},
      {"Alerts", "TextOther", "a heading"},
      {"Notifications", "Notification", ""},
      {"Bandwidth Alerts", "BandwidthAlert", ""},
      {"Interfaces", "Interfaces", ""},
      {"Admin", "Admin", ""},
      {"Speed Up", "SpeedUp", ""},
      {"Other", "Other", ""},
      {"Brisanto Script", "Other", "there is no such page"},
      {"Reset Settings", "ResetSettings", ""},
      {"General", "General", ""},
  };
  RunOpen([&] {
    EXPECT_EQ(Page(), "General");
    for (const Row& row : kRows) {
      SCOPED_TRACE(std::string(row.item) + " " + row.why);
      ChoosePage(row.item);
      EXPECT_EQ(Page(), row.page);
    }
    // The second of two items of that name.
    User().Choose("TreeItems", 16);
    EXPECT_EQ(Page(), "SpeedUp");
    Choose("DL-UL Statistics");
    User().Choose("PageControl1", 4);
    User().Press("Label1");
    EXPECT_EQ(Page(), "BandwidthAlert") << "the link of the statistics";
  });
}

TEST_F(Preferences, CloseEscAndTheCloseBoxOnlyHideIt) {
  RunOpen([&] {
    EXPECT_EQ(User().Focused(), "TreeItems");
    ChoosePage("Other");
    const platform::memory::WidgetState* form = &Widget(kForm);
    for (const auto& hide : std::initializer_list<std::function<void()>>{
             [&] { Close(); }, [&] { User().PressEsc(kForm); },
             [&] { User().ClickCloseBox(kForm); }}) {
      hide();
      EXPECT_FALSE(Widget(kForm).visible);
      Open();
      EXPECT_TRUE(Widget(kForm).visible);
      EXPECT_EQ(&Widget(kForm), form) << "another one was made";
      EXPECT_EQ(Page(), "Other") << "the page that was left";
    }
    const int raised = Widget(kForm).raised;
    Open();
    EXPECT_EQ(Widget(kForm).raised, raised + 1);
  });
}

TEST_F(Preferences, TheStoredValuesAreReadInOneOrder) {
  const std::vector<std::string> order = {
      "BevelInner",   "vGridVisible",        "FormMagnet",     "GraphColor_Download",
      "IconType",     "BevelWidth",          "GraphScaleType", "SpeedLimit",
      "TrayIconFile", "GraphColor_Font",     "FontNameIndex",  "SOM1",
      "SOM3",         "ScaleUnit",           "zdP1",           "WindowTitle",
      "AskOnExit",    "TransparentFade",     "TickerActive",   "BAAlerts",
      "LessByteWere", "NotificationsActive", "DLSwitchScr"};
  RunOpen([&] {
    Close();
    std::vector<std::string> read;
    machine.notebook.on_registry_read = [&](std::string_view name) { read.emplace_back(name); };
    Open();
    machine.notebook.on_registry_read = nullptr;
    EXPECT_EQ(InOrder(read, order), order);
    // The style of lines that are not shown, and the rule that is not chosen.
    EXPECT_EQ(InOrder(read, {"cmbHLineStyle", "MoreByteWere"}), std::vector<std::string>());
  });
}

TEST_F(Preferences, EveryControlHasANameAndAHintAndANumberSaysItsRange) {
  RunOpen([&] {
    const auto items = static_cast<int>(Widget("TreeItems").items.size());
    for (int item = 0; item < items; ++item) User().Choose("TreeItems", item);
    const std::function<void(toolkit::Control&)> check = [&](toolkit::Control& control) {
      for (toolkit::Control* child : control.Children()) check(*child);
      using Kind = platform::memory::WidgetState::Kind;
      if (!User().Exists(control.Name())) return;
      const auto& widget = Widget(control.Name());
      const bool is_worked =
          widget.kind == Kind::kEdit || widget.kind == Kind::kList ||
          widget.kind == Kind::kTrackBar ||
          (widget.kind == Kind::kButton && !widget.IsButton(platform::ButtonKind::kGroup));
      if (!is_worked) return;
      EXPECT_NE(control.Hint(), "") << control.Name();
      const std::string name = widget.events->Describe().name;
      EXPECT_NE(name, "") << control.Name();
      EXPECT_EQ(name.find('&'), std::string::npos) << name;
      const auto* spin = dynamic_cast<const toolkit::SpinEdit*>(&control);
      if (spin == nullptr || spin->Name() == "spnKeyLedsLimit") return;  // that one has no bounds
      EXPECT_NE(control.Hint().find(std::to_string(spin->Highest())), std::string::npos)
          << control.Name();
    };
    for (toolkit::Form* form : App().Forms()) {
      if (form->Name() == kForm) check(*form);
    }
  });
}

TEST_F(Preferences, ItsPlaceIsKept) {
  constexpr std::string_view kPlace = "Software\\BrisantoNET\\Settings\\SettingsScreen";
  RunOpen([&] {
    User().Drag(kForm, {33, 44});
    EXPECT_EQ(machine.registry.Dword(kPlace, "Left"), 33U);
  });
  RunOpen([&] {
    EXPECT_EQ(Widget(kForm).bounds.left, 33);
    EXPECT_EQ(Widget(kForm).bounds.top, 44);
  });
}

TEST_F(Preferences, LockedTheyOpenOnlyWithThePassword) {
  Set("zdP1", 1);
  Set("zdP", "secret");
  Run([&] {
    machine.message_loop.Then([&] { User().Press("CancelButton"); });
    Open();
    EXPECT_FALSE(User().Exists(kForm));
    machine.message_loop.Then([&] { User().Type("PassEdit", "secret"); });
    Open();
    EXPECT_TRUE(Widget(kForm).visible);
  });
}

TEST_F(Preferences, EveryPageIsLaidOutInEveryLanguage) {
  for (const char* language : {"German", "French", "Spanish", "Turkish", "Japanese"}) {
    std::ifstream file(std::string(SOURCE_FOLDER "/assets/Languages/") + language + ".lng",
                       std::ios::binary);
    machine.files.PutBesideProgram(
        std::string("Languages\\") + language + ".lng",
        std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
  }
  RunOpen([&] {
    ASSERT_EQ(Widget("cmbLanguage").items.size(), 6U);
    for (int i = 0; i < 6; ++i) {
      SCOPED_TRACE(Widget("cmbLanguage").items[static_cast<std::size_t>(i)]);
      User().Choose("cmbLanguage", i);
      for (toolkit::Form* form : App().Forms()) {
        if (form->Name() == kForm) {
          EXPECT_EQ(toolkit::LayoutFaults(*form), std::vector<std::string>());
        }
      }
    }
  });
}

}  // namespace
