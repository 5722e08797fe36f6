// The statistics windows as the menu opens them.
#include "tests/display/meter.h"

namespace {

using platform::memory::MakeRow;

class StatisticsMenu : public test::MeterTest {
 protected:
  toolkit::Form* Find(std::string_view name) {
    for (toolkit::Form* form : App().Forms()) {
      if (form->Name() == name) return form;
    }
    return nullptr;
  }
  std::string Shown(toolkit::Control& root, std::string_view name) {
    if (root.Name() == name) return root.Caption();
    for (toolkit::Control* child : root.Children()) {
      const std::string found = Shown(*child, name);
      if (!found.empty()) return found;
    }
    return {};
  }
  // Opens the window of an adapter; `user` is what happens while it is open.
  void OpenAdapter(const std::string& name, std::function<void()> user) {
    machine.message_loop.Then(std::move(user));
    Choose(name);
  }
};

TEST_F(StatisticsMenu, TheMachinesWindowIsOneAndGoesWhenItIsClosed) {
  Run([&] {
    Scan({2048, 1024});
    Choose("DL-UL Statistics");
    ASSERT_NE(Find("T_frmConnInfo"), nullptr);
    EXPECT_TRUE(Window().Enabled());
    EXPECT_EQ(Shown(*Find("T_frmConnInfo"), "lblInfoTotalDL"), "2");
    Choose("DL-UL Statistics");
    EXPECT_EQ(Widget("T_frmConnInfo").raised, 1);
    Scan({1024, 0});
    EXPECT_EQ(Shown(*Find("T_frmConnInfo"), "lblInfoTotalDL"), "3");
    machine.windowing.Press("Button2");
    EXPECT_FALSE(machine.windowing.Exists("T_frmConnInfo"));
    Choose("DL-UL Statistics");
    EXPECT_TRUE(machine.windowing.Exists("T_frmConnInfo"));
  });
  EXPECT_FALSE(machine.windowing.Exists("T_frmConnInfo"));
}

TEST_F(StatisticsMenu, AnAdaptersWindowIsModalAndBothStayRight) {
  machine.interface_table.AddRow(MakeRow("Fish & Chips"));
  Run([&] {
    Scan({});  // both adapters get their values
    Choose("DL-UL Statistics");
    bool open = false;
    OpenAdapter("Fish && Chips", [&] {
      open = true;
      EXPECT_EQ(Find("T_frmSpecificConnInfo")->Caption(), "Fish & Chips");
      EXPECT_FALSE(Find("T_frmConnInfo")->Enabled());
      machine.interface_table.AddTraffic(1, 4096, 10);
      Scan({1024, 10});
      EXPECT_EQ(Shown(*Find("T_frmSpecificConnInfo"), "lblInfoTotalDL"), "4");
      EXPECT_EQ(Shown(*Find("T_frmConnInfo"), "lblInfoTotalDL"), "5");

      int settings_opened = 0;
      Window().SetPreferences([&](std::string_view) { ++settings_opened; });
      int raised = 0;
      for (const char* other :
           {"DL-UL Statistics", "Ethernet", "Settings...", "About Korvane Tremolux"}) {
        machine.menus.WillChoose(other);
        machine.notification_area.RightClick({900, 700});
        EXPECT_EQ(Widget("T_frmSpecificConnInfo").raised, ++raised) << other;
      }
      EXPECT_EQ(Widget("T_frmConnInfo").raised + settings_opened, 0);
      EXPECT_EQ(Find("T_frmSpecificConnInfo")->Caption(), "Fish & Chips");

      // The adapter goes; what it has moved stays to be seen.
      machine.interface_table.rows.pop_back();
      Scan({});
      EXPECT_EQ(Shown(*Find("T_frmSpecificConnInfo"), "lblInfoTotalDL"), "4");
      machine.windowing.PressEsc("T_frmSpecificConnInfo");
    });
    EXPECT_TRUE(open);
    EXPECT_FALSE(machine.windowing.Exists("T_frmSpecificConnInfo"));
    EXPECT_TRUE(Find("T_frmConnInfo")->Enabled());
    OpenAdapter("Ethernet", [&] { App().Terminate(); });
  });
}

TEST_F(StatisticsMenu, ARefreshCostsLessThanTwoScans) {
  Run([&] {
    Scan({10, 10});
    // Of a scan without traffic, which is the cheapest.
    machine.notebook.Restart();
    Scan({});
    const int scan = machine.notebook.registry.round_trips;
    Choose("DL-UL Statistics");
    machine.notebook.Restart();
    Scan({});
    const int refresh = (machine.notebook.registry.round_trips - scan) / 2;
    RecordProperty("scan", scan);
    RecordProperty("refresh", refresh);
    EXPECT_GT(refresh, 0);
    EXPECT_LT(refresh, 2 * scan) << "in round trips to the registry";
  });
}

}  // namespace
