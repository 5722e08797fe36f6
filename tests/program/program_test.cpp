// The program as a whole: its start, its windows one by one, and what holds for all of them.
#include "program/program.h"

#include "tests/layout_faults.h"
#include "tests/meter.h"

namespace {

class Program : public test::Meter {
 protected:
  struct Window {
    const char* name;
    std::function<void()> open;
    std::string place = "";  // the key that keeps where it stands; empty where none does
    bool modal = true;
  };
  const std::vector<Window> kWindows = {
      {"T_frmAbout", [this] { ChooseInTray("About Korvane Tremolux"); }},
      {"T_frmAddTitles", [this] { App().Guard([this] { Meter::Window().EditTitles(); }); },
       "AddTitles"},
      {"T_frmAreYouSure", [this] { ChooseInTray("Exit"); }},
      {"T_frmSecurity", [this] { ChooseInTray("Settings..."); }},
      {"T_frmSpecificConnInfo", [this] { ChooseInTray("Ethernet"); }, "SpecificConnInfo"},
      {"T_frmBandWidthAlert",
       [this] {
         Scan({2048, 0});
       }},
      {"T_frmConnInfo", [this] { ChooseInTray("DL-UL Statistics"); }, "ConnInfo", false},
      {"T_frmPreferences", [this] { ChooseInTray("Settings..."); }, "Settings", false},
  };

  // Stores what makes the program open the window, and nothing that opens others.
  void Prepare(std::string_view window) {
    Set("zdP1", window == "T_frmSecurity" ? 1 : 0);
    for (const char* name : {"BAAlerts", "MoreThan", "baDownload", "BAAction"}) {
      Set(name, window == "T_frmBandWidthAlert" ? 1 : 0);
    }
    Set("BAShow", 0);
  }
  // Opens the window; `user` is what happens while it is open.
  void While(const Window& window, const std::function<void()>& user) {
    Set("BAShow", 0);
    if (window.modal) Then(user);
    window.open();
    if (!window.modal) user();
    EXPECT_FALSE(Shown(window.name));
    EXPECT_TRUE(App().Modals().Empty() && Widget("T_frmBrisanto").enabled);
    EXPECT_FALSE(App().Terminated());
  }
  [[nodiscard]] bool Shown(const char* name) { return User().Exists(name) && Widget(name).visible; }
};

TEST_F(Program, EachWindowOpensAfterTheSystemRefusedItAboveTheMeterIsRaisedByTheMenuAndCloses) {
  for (const Window& window : kWindows) {
    SCOPED_TRACE(window.name);
    Prepare(window.name);
    Run([&] {
      User().refused = window.name;
      window.open();
      const bool has_told = window.name == std::string("T_frmBandWidthAlert");  // by a balloon
      EXPECT_EQ(ErrorLog().empty(), has_told);
      User().refused.clear();
      machine.files.Remove(machine.files.ProgramFolder() + "err.log");
      int left = 0;
      const std::vector<std::function<void()>> ways = {[&] { User().ClickCloseBox(window.name); },
                                                       [&] { User().PressEsc(window.name); }};
      for (const auto& close : ways) {
        While(window, [&] {
          ASSERT_TRUE(Shown(window.name));
          const platform::Rect& at = Widget(window.name).bounds;
          const bool centred = std::abs(2 * at.left + at.width - 1280) < 2 &&
                               std::abs(2 * at.top + at.height - 984) < 2;
          EXPECT_TRUE(left == 40 ? at.left == 40 : centred) << "or else where it was";
          if (User().Exists("btnDetails")) User().Press("btnDetails");
          EXPECT_EQ(test::LayoutFaults(*Find(window.name)), std::vector<std::string>());
          EXPECT_FALSE(Widget(window.name).text.empty());
          EXPECT_TRUE(Widget(window.name).topmost) << "or else the meter would cover it";
          EXPECT_EQ(Widget("T_frmBrisanto").enabled, !window.modal);
          const auto raises = [&](const char* why, const std::function<void()>& act) {
            Widget(window.name).raised = 0;
            act();
            EXPECT_EQ(Widget(window.name).raised, 1) << why;
          };
          if (!window.modal) raises("again", window.open);
          for (const char* other :
               {"About Korvane Tremolux", "Ethernet", "DL-UL Statistics", "Settings..."}) {
            if (window.modal) raises(other, [&] { ChooseInTray(other); });
          }
          if (!window.place.empty()) {
            User().Drag(window.name, {left = 40, 50});
            EXPECT_EQ(machine.registry.Dword(
                          "Software\\BrisantoNET\\Settings\\" + window.place + "Screen", "Left"),
                      40U);
          }
          close();
        });
      }
    });
    EXPECT_EQ(ErrorLog(), "");
  }
}

TEST_F(Program, WithAReadOnlyRegistryItCountsAndSaysSoOnce) {
  machine.registry.DenyWriting(test::kSettingsKey);
  machine.registry.DenyWriting(test::kAdapterDatas);
  Run([&] {
    for (int scan = 0; scan < 3; ++scan) Scan({1000, 10});
    EXPECT_EQ(Meter::Window().Traffic().RunTotalDL, 3000);
  });
  EXPECT_EQ(ErrorLog(), "the settings in the registry are read-only\r\n");
}

TEST_F(Program, LockedThePreferencesAskForThePasswordWhileTheyAreOpenToo) {
  Set("zdP1", 1);
  Set("zdP", "Secret");
  Run([&] {
    const auto open = [&](bool knows) {
      Then([&] { knows ? User().Type("PassEdit", "Secret") : User().Press("CancelButton"); });
      OpenPreferences();
      return Shown("T_frmPreferences");
    };
    EXPECT_FALSE(open(false));
    EXPECT_TRUE(open(true));
    const int raised = Widget("T_frmPreferences").raised;
    EXPECT_TRUE(open(false));
    EXPECT_EQ(Widget("T_frmPreferences").raised, raised);
  });
}

TEST_F(Program, AFreshRunIsUncappedAndBeginsAtZeroAndASecondCopyEndsWithoutASign) {
  Set("GraphScaleType", 1);  // which the window's initialisation takes as a cap
  machine.clock.SetNow(platform::EncodeDateTime(2024, 5, 15, 18, 0, 0));
  Run([&] {
    const engine::TrafficState& traffic = Meter::Window().Traffic();
    EXPECT_EQ(traffic.SpeedCap, 0);
    EXPECT_EQ(traffic.RunStartDate, platform::EncodeDate(2024, 5, 15));
    EXPECT_EQ(traffic.RunStartTime, 0.75);
    EXPECT_EQ(machine.windowing.application_title, "Korvane Tremolux");
    EXPECT_EQ(Stored("TickerBytes"), 1000U) << "also what nobody has read";
    EXPECT_EQ(Stored("CurrentWeek"), 20U) << "as the window has set it";
  });
  for (const int result : {1, 0}) {
    EXPECT_EQ(program::RunOnce(machine.single_instance, [] { return 1; }), result);
  }
}

TEST_F(Program, AFailedStartIsLoggedAndMadeGoodByTheNextScan) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    platform::memory::Machine fresh;
    fresh.interface_table.AddRow(platform::memory::MakeRow("Ethernet"));
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
    ASSERT_FALSE(fresh.windowing.taskbar_button);
    if (!failed) break;
  }
}

}  // namespace
