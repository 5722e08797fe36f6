#include "engine/statistics.h"

#include <gtest/gtest.h>

#include "settings/value_texts.h"
#include "tests/engine/engine_world.h"

namespace {

using engine::AdapterCounters;
using platform::EncodeDate;
namespace setting = settings::setting;

AdapterCounters Counters(std::uint32_t in, std::uint32_t out, std::uint32_t max_in,
                         std::uint32_t max_out) {
  AdapterCounters counters;
  counters.DeltaIn = in;
  counters.DeltaOut = out;
  counters.MaxIn = max_in;
  counters.MaxOut = max_out;
  return counters;
}

// Totals stand at 1000 when a scan of 5 bytes comes: 1005 is "added", 0 "rolled over, not added",
// 5 "rolled over and added".
class Periods : public testing::Test {
 protected:
  void Prepare(platform::DateTime day, int week, int month) {
    world.store.Write(setting::CurrentDay, day);
    world.store.Write(setting::CurrentWeek, week);
    world.store.Write(setting::CurrentMonth, month);
    world.store.Write(setting::BAShow, true);
    for (const std::string period : {"Day", "Week", "Month"}) {
      for (const std::string value : {"TotalDL", "TotalUL", "MaxDL", "MaxUL"}) {
        world.SetText(test::kSettings, "Current" + period + value, "1000");
        world.SetText(test::kAdapterDatas, "cardCurrent" + period + value, "1000");
      }
    }
  }
  void UpdateAdapter(platform::DateTime today) {
    world.statistics.UpdateAdapterStatistics("Card", Counters(5, 5, 5, 5), today);
  }
  void UpdateMachine(platform::DateTime today) {
    world.statistics.UpdateMachinePeriods({5, 5, 5, 5}, today);
  }

  test::Engine world;
};

constexpr platform::DateTime kWednesday = 45427;  // 2024-05-15, in week 20

TEST_F(Periods, TheDayRollsOverOnAnyOtherMarker) {
  struct Row {
    const char* why;
    platform::DateTime marker;
    const char* total;
  };
  static constexpr Row kRows[] = {
      {"today", kWednesday, "1005"},
      {"yesterday", kWednesday - 1, "0"},
      {"tomorrow: the clock was set back", kWednesday + 1, "0"},
      {"today with a time of day is another date", kWednesday + 0.5, "0"},
      {"a year ago", kWednesday - 366, "0"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Prepare(row.marker, 20, 5);
    UpdateAdapter(kWednesday);
    EXPECT_EQ(world.Adapter("cardCurrentDayTotalDL"), row.total);
    EXPECT_EQ(world.store.ReadDate("CurrentDay", 0), row.marker) << "adapters write no marker";
    UpdateMachine(kWednesday);
    EXPECT_EQ(world.Machine("CurrentDayTotalDL"), row.total);
    EXPECT_EQ(world.store.ReadDate("CurrentDay", 0), kWednesday);
    EXPECT_EQ(world.store.Read(setting::BAShow), row.marker == kWednesday);
    EXPECT_EQ(world.Machine("CurrentWeekTotalDL"), "1005") << "week and month go on";
    EXPECT_EQ(world.Machine("CurrentMonthTotalUL"), "1005");
  }
  world.machine.registry.Remove(test::kSettings, "CurrentDay");
  UpdateMachine(kWednesday);
  EXPECT_EQ(world.Machine("CurrentDayTotalDL"), "0") << "a missing marker is yesterday's";
}

TEST_F(Periods, TheWeekWaitsForItsStartDayOneWeekLong) {
  struct Row {
    const char* why;
    platform::DateTime today;
    int marker;
    int starts_on;
    const char* machine;
    const char* adapter;
    int marker_after;
  };
  const auto may = [](int day) { return EncodeDate(2024, 5, day); };
  // 2024-05-13 is the Monday of week 20.
  const Row rows[] = {
      {"the same week", may(15), 20, 0, "1005", "1005", 20},
      {"Monday, no start day", may(13), 19, 0, "0", "0", 20},
      {"Monday, start on Sunday", may(13), 19, 1, "0", "0", 20},
      {"Monday, start on Monday", may(13), 19, 2, "0", "0", 20},
      {"Monday, start on Tuesday", may(13), 19, 3, "1005", "1005", 19},
      {"Tuesday, start on Wednesday", may(14), 19, 4, "1005", "1005", 19},
      {"Wednesday, start on Wednesday", may(15), 19, 4, "0", "0", 20},
      {"Friday, start on Saturday", may(17), 19, 7, "1005", "1005", 19},
      {"Saturday, start on Saturday", may(18), 19, 7, "0", "0", 20},
      {"Sunday is day 1 again", may(19), 19, 7, "1005", "1005", 19},
      {"a day that never comes", may(18), 19, 8, "1005", "1005", 19},
      {"until two weeks have passed", may(18), 18, 8, "5", "5", 20},
      {"two weeks, from the start day on adapters do not add", may(15), 18, 0, "5", "0", 20},
      {"two weeks, before the start day", may(13), 18, 3, "5", "5", 20},
      {"set back one week", may(15), 21, 0, "5", "0", 20},
      {"turn of the year: no waiting", EncodeDate(2024, 1, 1), 52, 7, "5", "5", 1},
      {"turn of the year in the middle of a week", EncodeDate(2025, 1, 1), 53, 7, "5", "5", 1},
      {"a marker that was never set", may(15), 0, 0, "5", "0", 20},
      {"a nonsense marker", may(15), -5, 9, "5", "5", 20},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Prepare(row.today, row.marker, platform::DecodeDate(row.today).month);
    world.store.Write(setting::wPerStartsOn, row.starts_on);
    UpdateAdapter(row.today);
    UpdateMachine(row.today);
    EXPECT_EQ(world.Machine("CurrentWeekTotalDL"), row.machine);
    EXPECT_EQ(world.Machine("CurrentWeekMaxUL"),
              row.machine == std::string("1005") ? "1000" : row.machine);
    EXPECT_EQ(world.Adapter("cardCurrentWeekTotalDL"), row.adapter);
    EXPECT_EQ(world.store.Read(setting::CurrentWeek), row.marker_after);
    EXPECT_EQ(world.store.Read(setting::BAShow), row.machine == std::string("1005"));
  }
}

TEST_F(Periods, TheMonthWaitsForItsStartDayInBothDirections) {
  struct Row {
    const char* why;
    platform::DateTime today;
    int marker;
    int starts_on;
    const char* machine;
    const char* adapter;
    int marker_after;
  };
  const auto may = [](int day) { return EncodeDate(2024, 5, day); };
  const Row rows[] = {
      {"the same month", may(15), 5, 0, "1005", "1005", 5},
      {"the 1st", may(1), 4, 0, "0", "0", 5},
      {"the 14th, start on the 15th", may(14), 4, 14, "1005", "1005", 4},
      {"the 15th", may(15), 4, 14, "0", "0", 5},
      {"the 31st, start on the 32nd", may(31), 4, 31, "1005", "1005", 4},
      {"set back one month, before the start day", may(15), 6, 20, "1005", "1005", 6},
      {"set back one month, at the start day", may(21), 6, 20, "0", "0", 5},
      {"set back two months", may(15), 7, 20, "5", "5", 5},
      {"two months on, before the start day", may(15), 3, 20, "5", "5", 5},
      {"two months on, behind it", may(15), 3, 0, "5", "0", 5},
      {"turn of the year: no waiting", EncodeDate(2025, 1, 1), 12, 14, "5", "5", 1},
      {"back from January to December", EncodeDate(2024, 12, 31), 1, 14, "5", "0", 12},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Prepare(row.today, 20, row.marker);
    world.store.Write(setting::mPerStartsOn, row.starts_on);
    UpdateAdapter(row.today);
    UpdateMachine(row.today);
    EXPECT_EQ(world.Machine("CurrentMonthTotalUL"), row.machine);
    EXPECT_EQ(world.Adapter("cardCurrentMonthTotalUL"), row.adapter);
    EXPECT_EQ(world.store.Read(setting::CurrentMonth), row.marker_after);
  }
}

TEST_F(Periods, StartDaysAreReadOnlyWhileAPeriodWaits) {
  Prepare(kWednesday, 20, 5);
  UpdateAdapter(kWednesday);
  UpdateMachine(kWednesday);
  EXPECT_FALSE(world.machine.registry.Exists(test::kSettings, "wPerStartsOn"));
  EXPECT_FALSE(world.machine.registry.Exists(test::kSettings, "mPerStartsOn"));
  Prepare(kWednesday, 20, 4);
  UpdateMachine(kWednesday);
  EXPECT_EQ(world.machine.registry.Dword(test::kSettings, "mPerStartsOn"), 0U)
      << "the scan's own default, not the preferences'";
}

TEST_F(Periods, AnAdapterThatMissesTheRollOverGoesOnWithItsOldValues) {
  Prepare(kWednesday - 1, 20, 5);
  UpdateMachine(kWednesday);  // the adapter was idle in this scan
  UpdateAdapter(kWednesday);
  EXPECT_EQ(world.Adapter("cardCurrentDayTotalDL"), "1005");
}

TEST(Statistics, AdaptersKeepTotalsWithoutAPeriod) {
  test::Engine world;
  world.SetText(test::kAdapterDatas, "cardInfoTotalDL", "9000000000");
  world.statistics.UpdateAdapterStatistics(" Card ", Counters(7, 8, 70, 80), kWednesday);
  EXPECT_EQ(world.Adapter("cardInfoTotalDL"), "9000000007");
  EXPECT_EQ(world.Adapter("cardInfoTotalUL"), "8");
  EXPECT_EQ(world.Adapter("cardInfoMaxDL"), "70");
  EXPECT_EQ(world.Adapter("cardInfoMaxUL"), "80");
  world.statistics.UpdateAdapterStatistics("CARD", Counters(1, 1, 69, 81), kWednesday);
  EXPECT_EQ(world.Adapter("cardInfoMaxDL"), "70") << "a smaller one does not count";
  EXPECT_EQ(world.Adapter("cardInfoMaxUL"), "81");
}

TEST(Statistics, TheMachinesMaximaAreOverwrittenAlsoDownwards) {
  test::Engine world;
  world.statistics.UpdateMachineMaxima({1, 1, 8000, 9000});
  world.statistics.UpdateMachineMaxima({1, 1, 300, 0});
  EXPECT_EQ(world.Machine("InfoMaxDL"), "300");
  EXPECT_EQ(world.Machine("InfoMaxUL"), "0");
  EXPECT_EQ(world.Machine("InfoTotalDL"), "-") << "never written by a scan";
}

TEST(Statistics, AnEqualMaximumIsWrittenAgainForAnAdapterOnly) {
  test::Engine world;
  const auto writes_of = [&](auto&& update) {
    update();
    world.machine.notebook.Restart();
    update();
    return world.machine.notebook.registry.text_writes;
  };
  world.store.Write(setting::CurrentDay, kWednesday);
  world.store.Write(setting::CurrentWeek, 20);
  world.store.Write(setting::CurrentMonth, 5);
  EXPECT_EQ(writes_of([&] {
              world.statistics.UpdateMachinePeriods({5, 5, 9, 9}, kWednesday);
            }),
            3 * 2);
  EXPECT_EQ(writes_of([&] {
              world.statistics.UpdateAdapterStatistics("a", Counters(5, 5, 9, 9), kWednesday);
            }),
            4 * 4);
}

TEST(Statistics, ACounterAtItsEndWrapsAndStaysReadable) {
  test::Engine world;
  world.store.Write(setting::CurrentDay, kWednesday);
  world.SetText(test::kSettings, "CurrentDayTotalDL", "9223372036854775807");
  world.statistics.UpdateMachinePeriods({1, 1, 1, 1}, kWednesday);
  EXPECT_EQ(world.Machine("CurrentDayTotalDL"), "-9223372036854775808");
  world.statistics.UpdateMachinePeriods({1, 1, 1, 1}, kWednesday);
  EXPECT_EQ(world.Machine("CurrentDayTotalDL"), "9223372036854775807");
}

TEST(Statistics, GarbageInACounterIsTheConversionError) {
  test::Engine world;
  world.SetText(test::kAdapterDatas, "aInfoTotalUL", "12 MB");
  EXPECT_THROW(world.statistics.UpdateAdapterStatistics("a", Counters(1, 1, 1, 1), kWednesday),
               settings::ConversionError);
  EXPECT_EQ(world.Adapter("aInfoTotalDL"), "1") << "what came before it is written";
  EXPECT_EQ(world.Adapter("aInfoTotalUL"), "12 MB") << "and nothing is put right";
}

TEST(Statistics, TheFirstStartSetsTheMarkersAndIncludesEveryAdapter) {
  test::Engine world;
  world.AddAdapter(" Card ");
  world.AddAdapter("MS TCP Loopback interface");
  world.machine.clock.SetNow(platform::EncodeDateTime(2024, 5, 19, 15, 0, 0));  // Sunday afternoon
  (void)world.Initialise();
  EXPECT_EQ(world.store.Read(setting::ExecuteTime), 1);
  EXPECT_EQ(world.store.ReadDate("CurrentDay", 0), EncodeDate(2024, 5, 19));
  EXPECT_EQ(world.store.Read(setting::CurrentWeek), 21) << "already the next day's week";
  EXPECT_EQ(world.store.Read(setting::CurrentMonth), 5);
  EXPECT_EQ(world.machine.registry.Dword(test::kSettings, " card "), 1U);
  EXPECT_EQ(world.machine.registry.Dword(test::kSettings, "ms tcp loopback interface"), 1U);

  world.machine.clock.SetNow(platform::EncodeDateTime(2024, 7, 1, 9, 0, 0));
  world.store.WriteBool(" card ", false);
  (void)world.Initialise();
  EXPECT_EQ(world.store.Read(setting::ExecuteTime), 2);
  EXPECT_EQ(world.store.ReadDate("CurrentDay", 0), EncodeDate(2024, 5, 19)) << "only once";
  EXPECT_FALSE(world.store.ReadBool(" card ", true));
}

}  // namespace
