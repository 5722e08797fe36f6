// Days, weeks and months that end, on dates of the tests' own. Where the date cannot be faked these
// tests are skipped.
#include <atomic>
#include <thread>

#include "tests/desktop/driver/faked_clock.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

// What every counter holds before; far more than a test moves.
constexpr std::int64_t kBefore = 5000000000000;

// Sends all the time, so that every scan finds traffic in both directions.
class SteadyTraffic {
 public:
  explicit SteadyTraffic(Loopback& loopback)
      : thread_([this, &loopback] {
          while (!stop_) {
            loopback.Send(1);
            ::Sleep(20);
          }
        }) {}
  ~SteadyTraffic() {
    stop_ = true;
    thread_.join();
  }
  SteadyTraffic(const SteadyTraffic&) = delete;
  SteadyTraffic& operator=(const SteadyTraffic&) = delete;

 private:
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

class FakedDate : public ProgramTest {
 protected:
  void SetUp() override {
    if (!clock_.Available()) GTEST_SKIP() << "the date cannot be faked here";
    ProgramTest::SetUp();
    adapter_ = loopback_.FindAdapter();
    if (adapter_.empty()) GTEST_SKIP() << "this system does not count the loopback's traffic";
    Prepare();
  }

  // The store of a program that has counted for a while.
  void Prepare() {
    CountOnly(adapter_);
    for (const char* period : {"Day", "Week", "Month"}) {
      for (const char* figure : {"TotalDL", "TotalUL", "MaxDL", "MaxUL"}) {
        const std::string name = std::string("Current") + period + figure;
        StoreCounter(kSettingsKey, name);
        StoreCounter(kAdaptersKey, adapter_ + name);
      }
    }
    Store("BAShow", 1U);
  }

  void StoreMarkers(const Moment& day, std::uint32_t week, std::uint32_t month) {
    StoreDate("CurrentDay", DaysOf(day));
    Store("CurrentWeek", week);
    Store("CurrentMonth", month);
  }

  // Whether the machine's and the adapter's four figures of a period have begun anew. Both must
  // agree, and all four.
  [[nodiscard]] bool BegunAnew(const std::string& period) const {
    int anew = 0;
    for (const char* figure : {"TotalDL", "TotalUL", "MaxDL", "MaxUL"}) {
      const std::string name = "Current" + period + figure;
      anew += Counter(kSettingsKey, name) < kBefore ? 1 : 0;
      anew += Counter(kAdaptersKey, adapter_ + name) < kBefore ? 1 : 0;
    }
    EXPECT_TRUE(anew == 0 || anew == 8) << period << ": " << anew << " of 8 begun anew";
    return anew == 8;
  }

  [[nodiscard]] static double StoredDay() {
    return Stored(kSettingsKey, "CurrentDay").value_or(StoredValue()).AsDate().value_or(0);
  }

  FakedClock clock_;
  Loopback loopback_;
  std::string adapter_;

 private:
  static void StoreCounter(const wchar_t* key, const std::string& name) {
    StoreText(key, name, std::to_string(kBefore));
  }
};

TEST_F(FakedDate, PeriodsEndByTheirOwnRules) {
  struct Row {
    const char* why;
    Moment now;
    // What is stored: the latest day, week and month.
    Moment day;
    std::uint32_t week, month;
    // When weeks and months begin.
    std::uint32_t week_start, month_start;
    bool new_day, new_week, new_month;
    std::uint32_t week_then, month_then;
  };
  static constexpr Moment kMonday{2026, 3, 9};
  static constexpr Moment kTuesday{2026, 3, 10};
  static constexpr Moment kWednesday{2026, 3, 11};
  static constexpr Row kRows[] = {
      {"nothing has ended", kWednesday, kWednesday, 11, 3, 0, 0, false, false, false, 11, 3},
      {"the new week and month wait for their start days", kTuesday, kMonday, 10, 2, 4, 10, true,
       false, false, 10, 2},
      {"which are reached", kWednesday, kTuesday, 10, 2, 4, 10, true, true, true, 11, 3},
      {"without start days the week begins on Monday and the month on the 1st", kMonday, kMonday,
       10, 2, 0, 0, false, true, true, 11, 3},
      {"whoever was away for longer does not wait", kMonday, kMonday, 9, 1, 7, 20, false, true,
       true, 11, 3},
      {"on 1 January nothing waits",
       {2026, 1, 1},
       {2025, 12, 31},
       53,
       12,
       7,
       20,
       true,
       true,
       true,
       1,
       1},
      {"a clock set back ends day and week, but a month waits",
       kWednesday,
       {2026, 4, 20},
       17,
       4,
       0,
       14,
       true,
       true,
       false,
       11,
       4},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Prepare();
    StoreMarkers(row.day, row.week, row.month);
    Store("wPerStartsOn", row.week_start);
    Store("mPerStartsOn", row.month_start);
    clock_.Set(row.now);
    const SteadyTraffic traffic(loopback_);
    Start();
    AwaitScans(3);
    Stop();
    EXPECT_EQ(BegunAnew("Day"), row.new_day);
    EXPECT_EQ(BegunAnew("Week"), row.new_week);
    EXPECT_EQ(BegunAnew("Month"), row.new_month);
    EXPECT_EQ(StoredDay(), DaysOf(row.now));
    EXPECT_EQ(Setting("CurrentWeek"), row.week_then);
    EXPECT_EQ(Setting("CurrentMonth"), row.month_then);
    const bool any = row.new_day || row.new_week || row.new_month;
    EXPECT_EQ(Setting("BAShow"), any ? 0U : 1U) << "the alert may be given again in a new period";
  }
}

TEST_F(FakedDate, MidnightPassesWhileTheProgramRuns) {
  const Moment evening{2026, 3, 10, 23, 59, 54};
  const double today = DaysOf(evening);
  clock_.Set(evening);
  StoreMarkers(evening, 11, 3);
  const SteadyTraffic traffic(loopback_);
  Start();
  AwaitScans(2);
  EXPECT_EQ(StoredDay(), today);
  EXPECT_GT(Counter(kSettingsKey, "CurrentDayTotalDL"), kBefore);
  Await("midnight", [&] { return StoredDay() == today + 1; });
  AwaitScans(3);
  EXPECT_TRUE(BegunAnew("Day"));
  EXPECT_GT(Counter(kSettingsKey, "CurrentDayTotalDL"), 0) << "the new day counts";
  EXPECT_FALSE(BegunAnew("Week"));
  EXPECT_FALSE(BegunAnew("Month"));
}

}  // namespace
}  // namespace desktop
