#include "engine/statistics.h"

#include <gtest/gtest.h>

#include "engine/periods.h"
#include "settings/value_texts.h"
#include "tests/world.h"

namespace {

using platform::EncodeDate;
namespace setting = settings::setting;

class Periods : public testing::Test, protected test::Adapters {
 protected:
  // No period is over; all totals stand at 1000.
  void Prepare(platform::DateTime today) {
    store.Write(setting::CurrentDay, today);
    store.Write(setting::CurrentWeek, engine::WeekOfYear(today));
    store.Write(setting::CurrentMonth, platform::DecodeDate(today).month);
    store.Write(setting::BAShow, true);
    for (const std::string period : {"Day", "Week", "Month"}) {
      for (const std::string value : {"TotalDL", "TotalUL", "MaxDL", "MaxUL"}) {
        Set("Current" + period + value, "1000");
        SetAdapter("cardCurrent" + period + value, "1000");
      }
    }
  }
  platform::DateTime Marker(const std::string& period) {
    return period == "Day" ? store.ReadDate("CurrentDay", 0)
                           : static_cast<double>(store.ReadInteger("Current" + period, 0));
  }
  // A scan of 5 bytes.
  void UpdateAdapter(platform::DateTime today) {
    engine::AdapterCounters counters;
    counters.DeltaIn = counters.DeltaOut = counters.MaxIn = counters.MaxOut = 5;
    statistics.UpdateAdapterStatistics("Card", counters, today);
  }
  void UpdateMachine(platform::DateTime today) {
    statistics.UpdateMachinePeriods({5, 5, 5, 5}, today);
  }
};

constexpr platform::DateTime kWednesday = 45427;  // 2024-05-15, in week 20

TEST_F(Periods, RollOverWhenTheirMarkerIsOldAndTheirStartDayHasCome) {
  // The totals: 1005 is "added", 0 "rolled over, not added", 5 "rolled over and added". The markers
  // before and after are the day, the number of the week or that of the month.
  struct Row {
    const char* why;
    std::string period;
    platform::DateTime today, marker;
    int starts_on;
    const char *machine, *adapter;
    platform::DateTime marker_after;
  };
  const auto may = [](int day) { return EncodeDate(2024, 5, day); };
  const auto new_year = EncodeDate(2024, 1, 1);
  for (const Row& row : {
           Row{"today", "Day", may(15), kWednesday, 0, "1005", "1005", kWednesday},
           Row{"yesterday", "Day", may(15), kWednesday - 1, 0, "0", "0", kWednesday},
           Row{"the clock was set back", "Day", may(15), kWednesday + 1, 0, "0", "0", kWednesday},
           Row{"today with a time", "Day", may(15), kWednesday + 0.5, 0, "0", "0", kWednesday},
           // 2024-05-13 is the Monday of week 20.
           Row{"Monday, no start day", "Week", may(13), 19, 0, "0", "0", 20},
           Row{"Monday, start on Monday", "Week", may(13), 19, 2, "0", "0", 20},
           Row{"Monday, start on Tuesday", "Week", may(13), 19, 3, "1005", "1005", 19},
           Row{"Saturday, start on Saturday", "Week", may(18), 19, 7, "0", "0", 20},
           Row{"Sunday is day 1 again", "Week", may(19), 19, 7, "1005", "1005", 19},
           Row{"a day that never comes", "Week", may(18), 19, 8, "1005", "1005", 19},
           Row{"until two weeks have passed", "Week", may(18), 18, 8, "5", "5", 20},
           Row{"two weeks, adapters do not add", "Week", may(15), 18, 0, "5", "0", 20},
           Row{"two weeks, before the start day", "Week", may(13), 18, 3, "5", "5", 20},
           Row{"set back one week", "Week", may(15), 21, 0, "5", "0", 20},
           Row{"turn of the year: no waiting", "Week", new_year, 52, 7, "5", "5", 1},
           Row{"the 1st", "Month", may(1), 4, 0, "0", "0", 5},
           Row{"the 14th, start on the 15th", "Month", may(14), 4, 14, "1005", "1005", 4},
           Row{"the 15th", "Month", may(15), 4, 14, "0", "0", 5},
           Row{"set back, before the start day", "Month", may(15), 6, 20, "1005", "1005", 6},
           Row{"set back two months", "Month", may(15), 7, 20, "5", "5", 5},
           Row{"two months on", "Month", may(15), 3, 20, "5", "5", 5},
           Row{"turn of the year: no waiting", "Month", new_year, 12, 14, "5", "5", 1},
           Row{"back to December", "Month", EncodeDate(2024, 12, 31), 1, 14, "5", "0", 12},
       }) {
    SCOPED_TRACE(row.period + ": " + row.why);
    Prepare(row.today);
    if (row.period == "Day") {
      store.Write(setting::CurrentDay, row.marker);
    } else {
      store.WriteInteger("Current" + row.period, static_cast<int>(row.marker));
      store.WriteInteger(row.period == "Week" ? "wPerStartsOn" : "mPerStartsOn", row.starts_on);
    }
    UpdateAdapter(row.today);
    EXPECT_EQ(Marker(row.period), row.marker) << "adapters write none";
    UpdateMachine(row.today);
    EXPECT_EQ(Marker(row.period), row.marker_after);
    for (const std::string period : {"Day", "Week", "Month"}) {
      const bool goes_on = period != row.period || row.machine == std::string("1005");
      EXPECT_EQ(StoredOfAdapter("cardCurrent" + period + "TotalDL"),
                period != row.period ? "1005" : row.adapter);
      EXPECT_EQ(StoredText("Current" + period + "TotalUL"), goes_on ? "1005" : row.machine);
      EXPECT_EQ(StoredText("Current" + period + "MaxUL"), goes_on ? "1000" : row.machine);
    }
    EXPECT_EQ(store.Read(setting::BAShow), row.machine == std::string("1005"));
  }
}

TEST_F(Periods, WhatIsNotStoredYet) {
  Prepare(kWednesday);
  machine.registry.Remove(test::kSettingsKey, "CurrentDay");
  UpdateMachine(kWednesday);
  EXPECT_EQ(StoredText("CurrentDayTotalDL"), "0") << "a missing marker is yesterday's";
  EXPECT_FALSE(machine.registry.Exists(test::kSettingsKey, "wPerStartsOn")) << "no period waits";
  store.Write(setting::CurrentMonth, 4);
  UpdateMachine(kWednesday);
  EXPECT_EQ(Stored("mPerStartsOn"), 0U) << "the scan's own default, not the preferences'";
}

TEST_F(Periods, ACounterAtItsEndWrapsAndStaysReadable) {
  Prepare(kWednesday);
  Set("CurrentDayTotalDL", "9223372036854775803");
  UpdateMachine(kWednesday);
  EXPECT_EQ(StoredText("CurrentDayTotalDL"), "-9223372036854775808");
  UpdateMachine(kWednesday);
  EXPECT_EQ(StoredText("CurrentDayTotalDL"), "9223372036854775803");
}

}  // namespace
