#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include "quantity/quantity.h"
#include "stats/unit_ConnInfo.h"
#include "stats/unit_SpecificConnInfo.h"
#include "tests/world.h"
#include "toolkit/controls/layout.h"

namespace {

using platform::MouseButton;
using stats::T_frmConnInfo;
using stats::T_frmSpecificConnInfo;

constexpr std::string_view kPeriods[] = {"Day", "Week", "Month"};
constexpr std::string_view kTabs[] = {"Daily", "Weekly", "Monthly"};

// The control of this name on a form, which may be one of two that have it; null for none.
toolkit::Control* FindOn(toolkit::Control& root, std::string_view name) {
  if (root.Name() == name) return &root;
  for (toolkit::Control* child : root.Children()) {
    if (toolkit::Control* found = FindOn(*child, name)) return found;
  }
  return nullptr;
}

// The names of all controls on a form.
void AddNames(const toolkit::Control& root, std::vector<std::string>& names) {
  names.push_back(root.Name());
  for (const toolkit::Control* child : root.Children()) AddNames(*child, names);
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

  // What stands in a key, one "name=value" each.
  std::vector<std::string> AllOf(std::string_view key) {
    std::vector<std::string> all;
    for (const std::string& name : machine.registry.Values(key)) {
      const auto number = machine.registry.Dword(key, name);
      const std::string text = machine.registry.Text(key, name).value_or("?");
      all.push_back(name + "=" + (number ? std::to_string(*number) : text));
    }
    return all;
  }

  // Numbers of kB that are different for every value of a window.
  void PlantAll(std::string_view key, const std::string& prefix) {
    int kilobytes = 1;
    const auto plant = [&](const std::string& name) {
      machine.registry.Set(key, prefix + name,
                           RegistryValue::Text(std::to_string(1024 * kilobytes++)));
    };
    for (const char* name : {"InfoMaxDL", "InfoMaxUL", "InfoTotalDL", "InfoTotalUL"}) plant(name);
    for (const std::string_view period : kPeriods) {
      for (const char* name : {"MaxDL", "MaxUL", "TotalDL", "TotalUL"}) {
        plant("Current" + std::string(period) + name);
      }
    }
  }

  // The rows of a window from top to bottom, tab by tab.
  static std::string AllRows(toolkit::Form& window) {
    std::string all;
    for (const char* row : {"MaxDL", "MaxUL", "TotalDL", "TotalUL", "TotalDLUL"}) {
      all += Row(window, "lblInfo" + std::string(row)) + ", ";
    }
    for (const std::string_view tab : kTabs) {
      for (const char* row : {"MaxDLRate", "MaxULRate", "DL", "UL", "DLUL"}) {
        all += Row(window, "lbl" + std::string(tab) + row) + ", ";
      }
    }
    return all;
  }

  void Release(MouseButton button) { machine.windowing.ReleaseMouse("Button1", {1, 1}, button); }

  quantity::Quantity quantity{store, machine.locale};
  engine::TrafficState traffic;
  stats::StatisticsContext context{app, store, quantity, language, traffic};
};

TEST_F(StatisticsWindows, EveryRowShowsItsOwnSource) {
  PlantAll(test::kSettingsKey, "");
  traffic.RunTotalDL = 100 * 1024;
  traffic.RunTotalUL = 200 * 1024;
  T_frmConnInfo machine_window(context);
  EXPECT_EQ(AllRows(machine_window),
            "1 kB, 2 kB, 100 kB, 200 kB, 300 kB, 5 kB, 6 kB, 7 kB, 8 kB, 15 kB, "
            "9 kB, 10 kB, 11 kB, 12 kB, 23 kB, 13 kB, 14 kB, 15 kB, 16 kB, 31 kB, ")
      << "the totals of the page Info are those of the run";
  EXPECT_EQ(Text(machine_window, "IpAddress"), "192.168.1.20");
  EXPECT_EQ(Text(machine_window, "T_frmConnInfo"), "DL-UL Statistics");

  // A name with everything that has a meaning somewhere.
  const std::string name = " Fish & \"Chips\" | \xC3\x84 %s ";
  PlantAll(test::kAdapterDatas, " fish & \"chips\" | \xC3\x84 %s ");
  SetAdapter(" fish & \"chips\" | \xC3\x84 %s MacAddress", "00-01-02-03-04-05");
  T_frmSpecificConnInfo adapter(context, name);
  EXPECT_EQ(Text(adapter, "IpAddress"), "-----------") << "before it is shown";
  adapter.Show();
  EXPECT_EQ(AllRows(adapter),
            "1 kB, 2 kB, 3 kB, 4 kB, 7 kB, 5 kB, 6 kB, 7 kB, 8 kB, 15 kB, "
            "9 kB, 10 kB, 11 kB, 12 kB, 23 kB, 13 kB, 14 kB, 15 kB, 16 kB, 31 kB, ");
  EXPECT_EQ(Text(adapter, "IpAddress"), "00-01-02-03-04-05");
  EXPECT_EQ(machine.windowing.Find("T_frmSpecificConnInfo").text, name);
  EXPECT_EQ(FindOn(adapter, "BandwidthTab"), nullptr);

  T_frmSpecificConnInfo unknown(context, "Nobody");
  unknown.Show();
  EXPECT_EQ(Text(unknown, "IpAddress"), "00-00-00-00-00") << "five pairs";
  EXPECT_EQ(Row(unknown, "lblMonthlyDLUL"), "0,0 kB");
  EXPECT_EQ(errors, std::vector<std::string>{});
}

TEST_F(StatisticsWindows, ARowFollowsWhatIsStoredTwiceASecond) {
  struct Case {
    const char* why;
    const char* stored;
    const char* bytes;
    const char* bits;
  };
  static constexpr Case kCases[] = {
      {"nothing yet", "0", "0,0 kB", "0,0 kbit"},
      {"cut, not rounded", "1023", "0,9 kB", "7,9 kbits"},
      {"whole numbers have no decimals", "1024", "1 kB", "8 kbits"},
      {"next to a gap", "102398", "99,9 kB", "799,9 kbits"},
      {"a gap between two ranges has no text", "102399", " ", "799,9 kbits"},
      {"the next unit begins at 1000", "1024000", "0,97 MB", "7,81 Mbits"},
      {"the largest with a text", "1023999999999998", "931,3226 TB", " "},
      {"too large for the ranges", "1023999999999999", " ", " "},
      {"the largest number", "9223372036854775807", " ", " "},
      {"below zero", "-5", " ", " "},
  };
  T_frmConnInfo window(context);
  window.Show();
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.why);
    Set("CurrentWeekMaxUL", c.stored);
    store.WriteInteger("ScaleUnit", 0);
    machine.timers.Advance(500);
    EXPECT_EQ(Row(window, "lblWeeklyMaxULRate"), c.bytes);
    store.WriteInteger("ScaleUnit", 1);
    machine.timers.Advance(500);
    EXPECT_EQ(Row(window, "lblWeeklyMaxULRate"), c.bits);
  }
  EXPECT_EQ(errors, std::vector<std::string>{});
}

TEST_F(StatisticsWindows, AStoredTextThatIsNoNumberLeavesItsRowsAloneAndIsToldOnce) {
  Set("CurrentDayTotalDL", "2048");
  T_frmConnInfo window(context);
  EXPECT_EQ(Row(window, "lblDailyDLUL"), "2 kB");
  for (const char* bad : {"", "12x", " 12", "9223372036854775808", "-"}) {
    SCOPED_TRACE(bad);
    errors.clear();
    Set("CurrentDayTotalDL", bad);
    Set("CurrentDayTotalUL", "1024");
    Set("CurrentMonthMaxDL", "4096");
    machine.timers.Advance(1500);
    EXPECT_EQ(Row(window, "lblDailyDL"), "2 kB");
    EXPECT_EQ(Row(window, "lblDailyDLUL"), "2 kB");
    EXPECT_EQ(Row(window, "lblDailyUL"), "1 kB") << "the others go on";
    EXPECT_EQ(Row(window, "lblMonthlyMaxDLRate"), "4 kB");
    EXPECT_EQ(errors, (std::vector<std::string>{"'" + std::string(bad) +
                                                "' is not a valid integer value"}));
  }
  Set("CurrentDayTotalDL", "1024");
  machine.timers.Advance(500);
  EXPECT_EQ(Row(window, "lblDailyDLUL"), "2 kB");
  EXPECT_EQ(errors.size(), 1U);
}

TEST_F(StatisticsWindows, ResetOfTheMachineWritesTheMaximaAndNothingElse) {
  PlantAll(test::kSettingsKey, "");
  PlantAll(test::kAdapterDatas, "ethernet");
  traffic.RunTotalDL = 1000;
  traffic.adapter_counters.resize(2);
  for (engine::AdapterCounters& counters : traffic.adapter_counters) {
    counters = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  }
  T_frmConnInfo window(context);
  window.Show();
  EXPECT_EQ(Text(window, "InfoGroupBox"), "Data transferred since 17.05.2024 09:30:00");
  const std::vector<std::string> before = AllOf(test::kSettingsKey);
  const std::vector<std::string> adapters = AllOf(test::kAdapterDatas);
  machine.clock.Advance(1000);
  machine.notebook.Restart();
  machine.windowing.Press("Button3");

  EXPECT_EQ(machine.notebook.registry.Writes(), 2);
  EXPECT_EQ(AllOf(test::kAdapterDatas), adapters);
  std::vector<std::string> changed;
  const std::vector<std::string> after = AllOf(test::kSettingsKey);
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                      std::back_inserter(changed));
  EXPECT_EQ(changed, (std::vector<std::string>{"InfoMaxDL=0", "InfoMaxUL=0"}));
  EXPECT_EQ(after.size(), before.size());

  EXPECT_EQ(traffic.RunTotalDL, 0);
  EXPECT_EQ(traffic.RunStartDate, platform::DateOf(machine.clock.Now()));
  EXPECT_EQ(traffic.RunStartTime, platform::TimeOf(machine.clock.Now()));
  for (const engine::AdapterCounters& counters : traffic.adapter_counters) {
    EXPECT_EQ(counters.MaxIn, 0U);
    EXPECT_EQ(counters.MaxOut, 0U);
    EXPECT_EQ(counters.DeltaOut, 8U);
    EXPECT_EQ(counters.LastInOctets, 3U);
  }
  EXPECT_EQ(Text(window, "lblInfoMaxUL"), "0,0");
  EXPECT_EQ(Text(window, "lblInfoTotalDLUL"), "0,0");
  EXPECT_EQ(Row(window, "lblDailyDL"), "7 kB");
  const platform::DateTime now = machine.clock.Now();
  EXPECT_EQ(Text(window, "InfoGroupBox"), "Data transferred since " +
                                              machine.locale.ShortDate(now) + " " +
                                              machine.locale.LongTime(now));
}

TEST_F(StatisticsWindows, ResetOfAnAdapterWritesItsFourValuesAndNothingElse) {
  PlantAll(test::kSettingsKey, "");
  PlantAll(test::kAdapterDatas, "ethernet");
  PlantAll(test::kAdapterDatas, "wlan");
  traffic.RunTotalDL = 1000;
  traffic.adapter_counters.resize(1);
  traffic.adapter_counters[0].MaxIn = 9;
  T_frmSpecificConnInfo window(context, "Ethernet");
  window.Show();
  EXPECT_EQ(Text(window, "InfoGroupBox"), "Data transferred since") << "without a date as yet";
  const std::vector<std::string> before = AllOf(test::kAdapterDatas);
  const std::vector<std::string> settings = AllOf(test::kSettingsKey);
  machine.clock.Advance(1000);
  machine.notebook.Restart();
  machine.windowing.Press("Button3");
  EXPECT_EQ(machine.notebook.registry.Writes(), 4);
  EXPECT_EQ(AllOf(test::kSettingsKey), settings);
  std::vector<std::string> changed;
  const std::vector<std::string> after = AllOf(test::kAdapterDatas);
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                      std::back_inserter(changed));
  EXPECT_EQ(changed, (std::vector<std::string>{"ethernetInfoMaxDL=0", "ethernetInfoMaxUL=0",
                                               "ethernetInfoTotalDL=0", "ethernetInfoTotalUL=0"}));
  EXPECT_EQ(traffic.RunTotalDL, 1000);
  EXPECT_EQ(traffic.adapter_counters[0].MaxIn, 9U);
  EXPECT_EQ(Text(window, "InfoGroupBox"), "Data transferred since " +
                                              machine.locale.ShortDate(machine.clock.Now()) + " " +
                                              machine.locale.LongTime(machine.clock.Now()));
}

TEST_F(StatisticsWindows, AResetInOneWindowChangesTheDateInBoth) {
  T_frmConnInfo machine_window(context);
  T_frmSpecificConnInfo adapter(context, "Ethernet");
  adapter.Show();
  traffic.RestartSince(platform::EncodeDateTime(2025, 1, 2, 3, 4, 5));
  machine.timers.Advance(500);
  for (toolkit::Form* window :
       {static_cast<toolkit::Form*>(&machine_window), static_cast<toolkit::Form*>(&adapter)}) {
    EXPECT_EQ(Text(*window, "InfoGroupBox"), "Data transferred since 02.01.2025 03:04:05");
  }
  T_frmSpecificConnInfo later(context, "Ethernet");
  later.Show();
  machine.timers.Advance(500);
  EXPECT_EQ(Text(later, "InfoGroupBox"), "Data transferred since");
}

TEST_F(StatisticsWindows, TheAddressIsCopiedWhenTheMouseIsReleased) {
  machine.sockets.addresses = {"10.0.0.1", std::string(300, '7')};
  auto window = std::make_unique<T_frmConnInfo>(context);
  int closed = 0;
  window->OnClosed = [&] {
    ++closed;
    window.reset();
  };
  window->Show();
  Release(MouseButton::kMiddle);
  EXPECT_EQ(machine.clipboard.changes, 0);
  machine.clipboard.held_by_other = true;
  Release(MouseButton::kLeft);
  machine.clipboard.held_by_other = false;
  EXPECT_EQ(machine.clipboard.changes, 0);
  machine.windowing.PressMouse("Button1");
  EXPECT_EQ(machine.clipboard.changes, 0) << "not yet";
  Release(MouseButton::kLeft);
  EXPECT_EQ(machine.clipboard.text, std::string(255, '7')) << "the last address, 255 characters";
  EXPECT_EQ(closed, 0);

  machine.clipboard.text.clear();
  machine.clipboard.changes = 0;
  machine.windowing.Press("Button1");
  EXPECT_EQ(machine.clipboard.changes, 1) << "click and release are one";
  FindOn(*window, "Button1")->OnClick();  // the blank bar
  EXPECT_EQ(machine.clipboard.changes, 2);
  machine.windowing.PressMouse("Button1");
  Release(MouseButton::kLeft);  // elsewhere, which is no click
  EXPECT_EQ(machine.clipboard.changes, 3);

  machine.clipboard.text.clear();
  Release(MouseButton::kRight);
  EXPECT_EQ(machine.clipboard.text.size(), 255U);
  EXPECT_EQ(closed, 1);
  EXPECT_FALSE(machine.windowing.Exists("T_frmConnInfo"));
  EXPECT_EQ(machine.timers.Running(), 0);
  EXPECT_EQ(errors, std::vector<std::string>{});
}

TEST_F(StatisticsWindows, ClosesByEachWayAndKeepsItsPlace) {
  struct Way {
    const char* name;
    std::function<void(platform::memory::Windowing&)> take;
  };
  const Way kWays[] = {
      {"Ok", [](auto& user) { user.Press("Button2"); }},
      {"Enter", [](auto& user) { user.PressEnter("T_frmConnInfo"); }},
      {"Esc", [](auto& user) { user.PressEsc("T_frmConnInfo"); }},
      {"the close box", [](auto& user) { user.ClickCloseBox("T_frmConnInfo"); }},
  };
  int left = 100;
  for (const Way& way : kWays) {
    SCOPED_TRACE(way.name);
    auto window = std::make_unique<T_frmConnInfo>(context);
    window->OnClosed = [&] { window.reset(); };
    EXPECT_EQ(window->WindowBounds().width, 265);
    EXPECT_EQ(window->WindowBounds().height, 258);
    if (left != 100) {
      EXPECT_EQ(window->WindowBounds().left, left);
    }
    window->Show();
    left += 10;
    machine.windowing.Drag("T_frmConnInfo", {left, 50});
    way.take(machine.windowing);
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(machine.registry.Dword("Software\\BrisantoNET\\Settings\\ConnInfoScreen", "Left"),
              static_cast<std::uint32_t>(left));
  }
}

TEST_F(StatisticsWindows, AreLaidOutAndGoneThroughInReadingOrder) {
  {
    T_frmConnInfo window(context);
    window.Show();
    for (const int dpi : {96, 120, 144, 192}) {
      SCOPED_TRACE(dpi);
      machine.windowing.ChangeDpi("T_frmConnInfo", dpi, {0, 0, 265 * dpi / 96, 258 * dpi / 96});
      EXPECT_EQ(toolkit::LayoutFaults(window), std::vector<std::string>{});
    }
    const std::vector<std::vector<std::string>> orders = {
        {"PageControl1", "Button1", "Button3", "Button2"},
        {"PageControl1", "Button2"},
        {"PageControl1", "Button2"},
        {"PageControl1", "Button2"},
        {"PageControl1", "Label1", "ISBAShown", "Button2"}};
    for (const std::vector<std::string>& order : orders) {
      EXPECT_EQ(machine.windowing.TabOrder("T_frmConnInfo"), order);
      machine.windowing.PressCtrlTab("T_frmConnInfo");
    }
    // Read one by one, each value comes behind its caption and before its unit.
    std::vector<std::string> names;
    AddNames(*FindOn(window, "InfoGroupBox"), names);
    for (const char* value : {"lblInfoMaxDL", "lblInfoTotalDLUL"}) {
      const auto at = std::find(names.begin(), names.end(), value);
      ASSERT_NE(at, names.end());
      EXPECT_EQ(at[-1], std::string(value) + "Caption");
      EXPECT_EQ(at[1], std::string(value) + "Unit");
    }
  }
  T_frmSpecificConnInfo adapter(context, "Ethernet");
  adapter.Show();
  EXPECT_EQ(adapter.ClientPixels(), (platform::Size{261, 264}));
  EXPECT_EQ(toolkit::LayoutFaults(adapter), std::vector<std::string>{});
}

TEST_F(StatisticsWindows, ARefreshTouchesOnlyWhatChanged) {
  PlantAll(test::kSettingsKey, "");
  T_frmConnInfo window(context);
  window.Show();
  std::vector<std::string> names;
  AddNames(window, names);
  const auto touched = [&] {
    std::string all;
    for (const std::string& name : names) {
      platform::memory::WidgetState& state = machine.windowing.Find(name);
      if (state.text_changes + state.invalidated > 0) all += name + " ";
      state.text_changes = state.invalidated = 0;
    }
    return all;
  };
  touched();
  machine.notebook.Restart();
  machine.timers.Advance(500);
  EXPECT_EQ(touched(), "");
  EXPECT_EQ(machine.notebook.registry.Writes(), 0);
  Set("CurrentWeekTotalUL", "2048");
  machine.timers.Advance(500);
  EXPECT_EQ(touched(), "lblWeeklyUL lblWeeklyDLUL ");
}

TEST_F(StatisticsWindows, ARefreshThatFailsAnywhereIsMadeGoodByTheNext) {
  PlantAll(test::kSettingsKey, "");
  traffic.RunTotalDL = 1024;
  T_frmConnInfo window(context);
  window.Show();
  const std::string right = AllRows(window);
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    machine.notebook.FailCall(call);
    machine.timers.Advance(500);
    const bool failed = !machine.notebook.FailurePending();
    machine.notebook.FailCall(0);
    machine.timers.Advance(500);
    ASSERT_EQ(AllRows(window), right);
    ASSERT_EQ(Text(window, "IpAddress"), "192.168.1.20");
    if (!failed) break;
  }
}

TEST_F(StatisticsWindows, RefreshesLeaveNothingBehind) {
  T_frmConnInfo window(context);
  window.Show();
  machine.timers.Advance(500);
  const int timers = machine.timers.started;
  const int open_libraries = machine.sockets.starts - machine.sockets.cleanups;
  machine.notebook.Restart();
  machine.timers.Advance(500);
  const int reads = machine.notebook.registry.round_trips;
  machine.notebook.Restart();
  int unit_reads = 0;
  machine.notebook.on_registry_read = [&](std::string_view name) {
    if (name == "ScaleUnit") ++unit_reads;
  };
  machine.timers.Advance(100 * 500);
  machine.notebook.on_registry_read = nullptr;
  EXPECT_EQ(machine.notebook.registry.round_trips, 100 * reads);
  EXPECT_EQ(unit_reads, 100) << "once a refresh, for all of its amounts";
  EXPECT_EQ(machine.timers.started, timers);
  EXPECT_EQ(machine.timers.Running(), 1);
  EXPECT_EQ(machine.sockets.starts - machine.sockets.cleanups, open_libraries);
}

TEST_F(StatisticsWindows, TheBandwidthTabShowsTheLimitAndArmsTheAlertAgain) {
  store.WriteInteger("MoreThan", 4);
  store.WriteBool("baUpload", true);
  Set("CurrentDayTotalUL", "1024");
  machine.sockets.addresses.reset();
  T_frmConnInfo window(context);
  window.Show();
  EXPECT_EQ(Row(window, "lblBandwidthLeft"), "3 kB");
  EXPECT_EQ(Text(window, "IpAddress"), "") << "no network";

  auto& box = dynamic_cast<toolkit::CheckBox&>(*FindOn(window, "ISBAShown"));
  EXPECT_FALSE(box.Checked());
  store.WriteBool("BAShow", true);  // the alert was given
  machine.timers.Advance(500);
  EXPECT_TRUE(box.Checked());
  dynamic_cast<toolkit::PageControl&>(*FindOn(window, "PageControl1")).SetActivePageIndex(4);
  machine.windowing.Press("ISBAShown");
  EXPECT_FALSE(store.ReadBool("BAShow", true));

  machine.windowing.Press("Label1");  // nobody opens the preferences yet
  int opened = 0;
  window.OpenSettings = [&] { ++opened; };
  machine.windowing.Press("Label1");
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(errors, std::vector<std::string>{});
}

}  // namespace
