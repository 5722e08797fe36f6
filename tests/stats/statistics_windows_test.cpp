#include <gtest/gtest.h>

#include <memory>

#include "quantity/quantity.h"
#include "stats/unit_ConnInfo.h"
#include "stats/unit_SpecificConnInfo.h"
#include "tests/world.h"

namespace {

using platform::MouseButton;
using stats::T_frmConnInfo;
using stats::T_frmSpecificConnInfo;
using Texts = std::vector<std::string>;

// The control of this name on a form, which may be one of two that have it; null for none.
toolkit::Control* FindOn(toolkit::Control& root, std::string_view name) {
  if (root.Name() == name) return &root;
  for (toolkit::Control* child : root.Children()) {
    if (toolkit::Control* found = FindOn(*child, name)) return found;
  }
  return nullptr;
}

class StatisticsWindows : public testing::Test, protected test::World {
 protected:
  StatisticsWindows() { traffic.RestartRun(platform::EncodeDateTime(2024, 5, 17, 9, 30, 0)); }

  static std::string Text(toolkit::Control& form, std::string_view name) {
    const toolkit::Control* control = FindOn(form, name);
    return control != nullptr ? control->Caption() : "(no " + std::string(name) + ")";
  }
  // Value and unit of a row.
  static std::string Row(toolkit::Control& form, const std::string& name) {
    return Text(form, name) + " " + Text(form, name + "Unit");
  }
  // The rows of a window from top to bottom, tab by tab.
  static std::string AllRows(toolkit::Form& window) {
    std::string all;
    for (const char* row : {"MaxDL", "MaxUL", "TotalDL", "TotalUL", "TotalDLUL"}) {
      all += Row(window, "lblInfo" + std::string(row)) + ", ";
    }
    for (const std::string tab : {"Daily", "Weekly", "Monthly"}) {
      all += Text(window, tab + "GroupBox") + ": ";
      for (const char* row : {"MaxDLRate", "MaxULRate", "DL", "UL", "DLUL"}) {
        all += Row(window, "lbl" + tab + row) + ", ";
      }
    }
    return all;
  }

  // Stores numbers of kB that are different for every value of a window.
  void PlantAll(std::string_view key, const std::string& prefix) {
    int kilobytes = 1;
    for (const std::string group : {"Info", "CurrentDay", "CurrentWeek", "CurrentMonth"}) {
      for (const char* name : {"MaxDL", "MaxUL", "TotalDL", "TotalUL"}) {
        machine.registry.Set(key, prefix + group + name,
                             RegistryValue::Text(std::to_string(1024 * kilobytes++)));
      }
    }
  }
  // Presses "Reset" a second later; returns what that has stored, and with how many writes.
  std::string Reset() {
    const StoredValues before = AllValues();
    machine.clock.Advance(1000);
    machine.notebook.Restart();
    machine.windowing.Press("Button3");
    const int writes = machine.notebook.registry.writes;
    return ChangesSince(before) + " in " + std::to_string(writes);
  }

  void Refresh() { machine.timers.Advance(500); }

  quantity::Quantity quantity{store, machine.locale};
  engine::TrafficState traffic;
  stats::StatisticsContext context{app, store, quantity, language, traffic};
};

constexpr const char* kStoredPeriods =
    "Data transferred: 5 kB, 6 kB, 7 kB, 8 kB, 15 kB, "
    "Data transferred: 9 kB, 10 kB, 11 kB, 12 kB, 23 kB, "
    "Data transferred: 13 kB, 14 kB, 15 kB, 16 kB, 31 kB, ";

TEST_F(StatisticsWindows, EveryRowShowsItsOwnSource) {
  PlantAll(test::kSettingsKey, "");
  traffic.RunTotalDL = 100 * 1024;
  traffic.RunTotalUL = 200 * 1024;
  T_frmConnInfo machine_window(context);
  EXPECT_EQ(AllRows(machine_window),
            std::string("1 kB, 2 kB, 100 kB, 200 kB, 300 kB, ") + kStoredPeriods)
      << "the totals of the page Info are those of the run";
  EXPECT_EQ(Text(machine_window, "IpAddress"), "192.168.1.20");

  // A name with everything that has a meaning somewhere.
  const std::string name = " Fish & \"Chips\" | \u00C4 %s ";
  PlantAll(test::kAdapterDatas, " fish & \"chips\" | \u00C4 %s ");
  SetAdapter(" fish & \"chips\" | \u00C4 %s MacAddress", "00-01-02-03-04-05");
  T_frmSpecificConnInfo adapter(context, name);
  EXPECT_EQ(Text(adapter, "IpAddress"), "-----------") << "before it is shown";
  adapter.Show();
  EXPECT_EQ(AllRows(adapter), std::string("1 kB, 2 kB, 3 kB, 4 kB, 7 kB, ") + kStoredPeriods);
  EXPECT_EQ(Text(adapter, "IpLabel") + Text(adapter, "IpAddress"), "Mac Address00-01-02-03-04-05");
  EXPECT_EQ(Widget("T_frmSpecificConnInfo").text, name);

  T_frmSpecificConnInfo unknown(context, "Nobody");
  unknown.Show();
  EXPECT_EQ(Text(unknown, "IpAddress"), "00-00-00-00-00") << "five pairs";
  EXPECT_EQ(Row(unknown, "lblMonthlyDLUL"), "0,0 kB");
}

TEST_F(StatisticsWindows, ARowFollowsWhatIsStoredTwiceASecondAndAFaultyOneIsLeftAloneAndToldOnce) {
  T_frmConnInfo window(context);
  window.Show();
  Set("CurrentDayTotalDL", "2048");
  Set("CurrentDayTotalUL", "102399");
  Refresh();
  EXPECT_EQ(Row(window, "lblDailyDLUL"), "101,9 kB");
  EXPECT_EQ(Row(window, "lblDailyUL"), " ") << "a gap between two ranges has no text";
  Set("ScaleUnit", 1);
  Refresh();
  EXPECT_EQ(Row(window, "lblDailyDL"), "16 kbits");

  Set("CurrentDayTotalDL", "12x");
  Set("CurrentDayTotalUL", "1024");
  machine.timers.Advance(1500);
  EXPECT_EQ(Row(window, "lblDailyDL"), "16 kbits");
  EXPECT_EQ(Row(window, "lblDailyDLUL"), "815,9 kbits");
  EXPECT_EQ(Row(window, "lblDailyUL"), "8 kbits") << "the others go on";
  EXPECT_EQ(errors, Texts{"'12x' is not a valid integer value"});
  Set("CurrentDayTotalDL", "1024");
  Refresh();
  EXPECT_EQ(Row(window, "lblDailyDLUL"), "16 kbits");
  EXPECT_EQ(errors.size(), 1U);
}

TEST_F(StatisticsWindows, ResetOfTheMachineWritesTheMaximaAndNothingElse) {
  PlantAll(test::kSettingsKey, "");
  PlantAll(test::kAdapterDatas, "ethernet");
  traffic.RunTotalDL = traffic.RunTotalUL = 1000;
  traffic.adapter_counters.assign(2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
  T_frmConnInfo window(context);
  window.Show();
  EXPECT_EQ(Text(window, "InfoGroupBox"), "Data transferred since 17.05.2024 09:30:00");
  EXPECT_EQ(Reset(), R"(InfoMaxDL="0" InfoMaxUL="0" in 2)");
  EXPECT_EQ(traffic.RunTotalDL + traffic.RunTotalUL, 0);
  for (const engine::AdapterCounters& counters : traffic.adapter_counters) {
    EXPECT_EQ(counters.MaxIn + counters.MaxOut, 0U);
    EXPECT_EQ(counters.DeltaOut + counters.LastInOctets, 8U + 3U);
  }
  EXPECT_EQ(Text(window, "lblInfoMaxUL") + Text(window, "lblInfoTotalDLUL"), "0,00,0");
  EXPECT_NE(Text(window, "InfoGroupBox"), "Data transferred since 17.05.2024 09:30:00");
}

TEST_F(StatisticsWindows, ResetOfAnAdapterWritesItsFourValuesAndChangesTheDateInBoth) {
  PlantAll(test::kAdapterDatas, "ethernet");
  PlantAll(test::kAdapterDatas, "wlan");
  traffic.RunTotalDL = 1000;
  T_frmSpecificConnInfo adapter(context, "Ethernet");
  adapter.Show();
  EXPECT_EQ(Text(adapter, "InfoGroupBox"), "Data transferred since") << "without a date as yet";
  EXPECT_EQ(Reset(), R"(ethernetInfoMaxDL="0" ethernetInfoMaxUL="0" ethernetInfoTotalDL="0" )"
                     R"(ethernetInfoTotalUL="0" in 4)");
  EXPECT_EQ(traffic.RunTotalDL, 1000);
  EXPECT_NE(Text(adapter, "InfoGroupBox"), "Data transferred since");
  T_frmConnInfo machine_window(context);
  traffic.RestartSince(platform::EncodeDateTime(2025, 1, 2, 3, 4, 5));
  Refresh();
  for (toolkit::Form* window : std::initializer_list<toolkit::Form*>{&adapter, &machine_window}) {
    EXPECT_EQ(Text(*window, "InfoGroupBox"), "Data transferred since 02.01.2025 03:04:05");
  }
}

TEST_F(StatisticsWindows, TheAddressIsCopiedWhenTheMouseIsReleased) {
  const auto release = [this](MouseButton button) {
    machine.windowing.ReleaseMouse("Button1", {1, 1}, button);
    return machine.clipboard.changes;
  };
  machine.sockets.addresses = {"10.0.0.1", "10.0.0.2"};
  auto window = std::make_unique<T_frmConnInfo>(context);
  int closed = 0;
  window->OnClosed = [&] {
    ++closed;
    window.reset();
  };
  window->Show();
  machine.windowing.PressMouse("Button1");
  EXPECT_EQ(release(MouseButton::kMiddle), 0) << "not yet";
  EXPECT_EQ(release(MouseButton::kLeft), 1) << "elsewhere, which is no click";
  EXPECT_EQ(machine.clipboard.text, "10.0.0.2");
  machine.windowing.Press("Button1");
  EXPECT_EQ(machine.clipboard.changes, 2) << "click and release are one";
  FindOn(*window, "Button1")->OnClick();
  EXPECT_EQ(machine.clipboard.changes, 3) << "the blank bar";
  EXPECT_EQ(release(MouseButton::kRight), 4);
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(machine.timers.Running(), 0);
}

TEST_F(StatisticsWindows, AreGoneThroughByTabAndTellWhatEverythingIs) {
  T_frmConnInfo window(context);
  window.Show();
  EXPECT_EQ(machine.windowing.TabOrder("T_frmConnInfo"),
            (Texts{"PageControl1", "Button1", "Button3", "Button2"}));
  for (int page = 1; page < 5; ++page) machine.windowing.PressCtrlTab("T_frmConnInfo");
  EXPECT_EQ(machine.windowing.TabOrder("T_frmConnInfo"),
            (Texts{"PageControl1", "Label1", "ISBAShown", "Button2"}));
  T_frmSpecificConnInfo adapter(context, "Ethernet");
  EXPECT_EQ(test::Untold(window) + test::Untold(adapter), "PageControl1 PageControl1 ");
  const std::string no_hint = test::Untold(window, true) + test::Untold(adapter, true);
  for (const char* name :
       {"Button1 ", "Button3 ", "Caption ", "StaticText", "lblDailyDL ", "Label1 ", "ISBAShown "}) {
    EXPECT_EQ(no_hint.find(name), std::string::npos) << name;
  }
}

TEST_F(StatisticsWindows, TheBandwidthTabShowsTheLimitAndArmsTheAlertAgain) {
  Set("MoreThan", 4);
  Set("baUpload", 1);
  Set("CurrentDayTotalUL", "1024");
  machine.sockets.addresses.reset();
  T_frmConnInfo window(context);
  window.Show();
  EXPECT_EQ(Row(window, "lblBandwidthLeft"), "3 kB");
  EXPECT_EQ(Text(window, "IpAddress"), "") << "no network";

  auto& box = dynamic_cast<toolkit::CheckBox&>(*FindOn(window, "ISBAShown"));
  EXPECT_FALSE(box.Checked());
  Set("BAShow", 1);  // the alert was given
  Refresh();
  dynamic_cast<toolkit::PageControl&>(*FindOn(window, "PageControl1")).SetActivePageIndex(4);
  machine.windowing.Press("ISBAShown");
  EXPECT_EQ(Stored("BAShow"), 0U);

  machine.windowing.Press("Label1");  // nobody opens the preferences yet
  int opened = 0;
  window.OpenSettings = [&] { ++opened; };
  machine.windowing.Press("Label1");
  EXPECT_EQ(opened, 1);
}

TEST(HostAddress, ASlowLookUpIsNotRepeatedBeforeTwentyTimesItsLength) {
  platform::memory::Machine machine;
  stats::HostAddress address(machine.sockets, machine.clock);
  machine.sockets.addresses = {"10.0.0.1", "10.0.0.2"};
  machine.sockets.during_look_up = [&] { machine.clock.Advance(50); };
  EXPECT_EQ(address.Get(), "10.0.0.2");
  EXPECT_EQ(address.Get(), "10.0.0.2");
  EXPECT_EQ(machine.sockets.look_ups, 2) << "50 ms are not slow";

  machine.sockets.during_look_up = [&] { machine.clock.Advance(51); };
  EXPECT_EQ(address.Get(), "10.0.0.2");
  machine.sockets.addresses = {"10.0.0.3"};
  machine.clock.Advance(20 * 51 - 1);
  EXPECT_EQ(address.Get(), "10.0.0.2");
  machine.clock.Advance(1);
  EXPECT_EQ(address.Get(), "10.0.0.3");
}

}  // namespace
