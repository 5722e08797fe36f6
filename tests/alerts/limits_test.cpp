// What reacts to the bytes of a scan or of a period: the limit, the ticker and the lights.
#include <gtest/gtest.h>

#include <limits>

#include "alerts/bandwidth_alert.h"
#include "alerts/keyboard_leds.h"
#include "alerts/ticker.h"
#include "settings/value_texts.h"
#include "tests/world.h"

namespace {

class BandwidthLimit : public testing::Test, protected test::Computer {
 protected:
  BandwidthLimit() {
    Set("BAAlerts", 1);
    Set("MoreThan", 10);
    Set("AlertsMoreThan", 1);
    Set("baDownload", 1);
  }
  bool Alerts() {
    bool alerted = false;
    alerts::CheckBandwidthAlert(store, [&] {
      EXPECT_TRUE(store.ReadBool("BAShow", false)) << "marked before the alert runs";
      alerted = true;
    });
    return alerted;
  }
};

TEST_F(BandwidthLimit, AlertsAtTheExactByteOfItsPeriodAndDirections) {
  struct Row {
    const char* why;
    int period;
    const char* of;  // the period that has the totals; the others have none
    bool download, upload;
    const char* total_dl;
    const char* total_ul;
    bool alerts;
  };
  static constexpr Row kRows[] = {
      {"a byte below", 0, "Day", true, false, "10485759", "99999999", false},
      {"the exact byte", 0, "Day", true, false, "10485760", "0", true},
      {"of a week", 1, "Week", true, true, "10485759", "1", true},
      {"of a month", 2, "Month", false, true, "0", "10485760", true},
      {"upload alone, a byte below", 0, "Day", false, true, "99999999", "10485759", false},
      {"of another period", 1, "Day", true, true, "99999999", "99999999", false},
      {"no direction", 0, "Day", false, false, "99999999", "99999999", false},
      {"periods that do not exist", 3, "Day", true, true, "99999999", "99999999", false},
      {"and below zero", -1, "Day", true, true, "99999999", "99999999", false},
      {"near the largest number", 0, "Day", true, true, "9223372036854775807", "1", false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Set("BAShow", 0);
    Set("BADayWeekMonth", row.period);
    Set("baDownload", row.download);
    Set("baUpload", row.upload);
    for (const std::string period : {"Day", "Week", "Month"}) {
      Set("Current" + period + "TotalDL", period == row.of ? row.total_dl : "0");
      Set("Current" + period + "TotalUL", period == row.of ? row.total_ul : "0");
    }
    EXPECT_EQ(Alerts(), row.alerts);
    EXPECT_FALSE(Alerts()) << "only once in a period";
  }
}

TEST_F(BandwidthLimit, KnowsItsThreeUnitsAndItsDefaultAndEndsTheScanForATotalThatIsNoNumber) {
  Set("MoreThan", 7);
  for (const int unit : {0, 1, 2}) {
    Set("AlertsMoreThan", unit);
    EXPECT_EQ(alerts::LimitBytes(store), 7LL << (10 + 10 * unit));
  }
  Set("CurrentDayTotalDL", "9223372036854775807");
  for (const int unit : {-1, 3}) {
    Set("AlertsMoreThan", unit);
    EXPECT_FALSE(alerts::LimitBytes(store).has_value());
    EXPECT_FALSE(Alerts());
  }
  Set("AlertsMoreThan", 0);
  machine.registry.Remove(test::kSettingsKey, "MoreThan");
  EXPECT_EQ(alerts::LimitBytes(store), 0) << "the scan's own default, not the preferences'";
  Set("CurrentDayTotalDL", "a lot");
  EXPECT_THROW(Alerts(), settings::ConversionError);
  EXPECT_FALSE(store.ReadBool("BAShow", false));
}

class Ticker : public testing::Test, protected test::Reacting {
 protected:
  Ticker() {
    Set("TickerActive", 1);
    Set("TickerBytes", 1000);
  }
  // Sounds of a scan.
  std::size_t Sounds(std::int64_t dl, std::int64_t ul) {
    machine.sound.played.clear();
    ticker.Update({dl, ul, 0, 0});
    return machine.sound.played.size();
  }

  alerts::Ticker ticker{store, reactions};
};

TEST_F(Ticker, TicksOnceAScanAndKeepsTheRest) {
  EXPECT_EQ(Sounds(600, 100), 0U);
  EXPECT_EQ(Sounds(200, 100), 1U);
  EXPECT_EQ(Sounds(1100, 300), 1U);  // and 400 are left
  EXPECT_EQ(machine.sound.played[0], store.ProgramFile("ticking.wav"));
  EXPECT_EQ(Sounds(5000, 0), 0U) << "both directions must have moved";
  EXPECT_EQ(Sounds(300, 299), 0U);
  Set("TickerActive", 0);
  EXPECT_EQ(Sounds(5000, 5000), 0U) << "counts nothing while it is off";
  Set("TickerActive", 1);
  EXPECT_EQ(Sounds(9000, 1), 1U);  // 10000: nine more ticks are owed
  for (int i = 0; i < 8; ++i) EXPECT_EQ(Sounds(1, 1), 1U);
  Set("TickerBytes", -2);
  EXPECT_EQ(Sounds(std::numeric_limits<std::int64_t>::max() - 2000, 1), 1U);
  EXPECT_EQ(Sounds(2000, 1), 0U) << "the count wrapped and is below zero now";
}

class Leds : public testing::Test, protected test::Reacting {
 protected:
  static constexpr std::uint8_t kNum = 144;
  static constexpr std::uint8_t kScroll = 145;

  void Update(std::int64_t dl, std::int64_t ul) {
    alerts::UpdateKeyboardLeds(store, manager.sys_keys, {dl, ul, 0, 0});
  }
};

TEST_F(Leds, FollowTheTable) {
  struct Row {
    const char* why;
    std::int64_t limit, dl, ul;
    int scroll, num;
    std::size_t from_off, from_on;  // key events: two a stroke
  };
  static constexpr Row kRows[] = {
      {"download only", 1000, 5000, 200, 1, 0, 2, 2},
      {"upload only", 1000, 200, 5000, 0, 1, 2, 2},
      {"both idle", 1000, 200, 300, 0, 0, 0, 4},
      {"both busy", 1000, 5000, 5000, 1, 1, 4, 0},
      {"both on the limit: the second pair has the last word", 1000, 1000, 1000, 1, 0, 2, 6},
      {"download on the limit", 1000, 1000, 200, 1, 0, 2, 6},
      {"upload on the limit", 1000, 200, 1000, 0, 1, 2, 6},
      {"busy on the limit", 1000, 1000, 5000, 0, 1, 6, 2},
      {"and the other way round", 1000, 5000, 1000, 1, 0, 6, 2},
  };
  Set("DLSwitchScr", 1);
  Set("ULSwitchNum", 1);
  for (const Row& row : kRows) {
    for (const std::uint8_t before : {std::uint8_t{0}, std::uint8_t{1}}) {
      SCOPED_TRACE(row.why);
      Set("spnKeyLedsLimit", row.limit);
      machine.keyboard.states[kScroll] = before;
      machine.keyboard.states[kNum] = before;
      machine.keyboard.sent.clear();
      Update(row.dl, row.ul);
      EXPECT_EQ(machine.keyboard.sent.size(), before == 0 ? row.from_off : row.from_on);
      EXPECT_EQ(machine.keyboard.states[kScroll], row.scroll);
      EXPECT_EQ(machine.keyboard.states[kNum], row.num);
    }
  }
}

TEST_F(Leds, AreLeftAloneWhenNotGivenOrHeldDownAndElseSwitchedByAKeyStroke) {
  using Strokes = std::vector<platform::memory::KeyEvent>;
  Update(5000, 5000);
  EXPECT_EQ(machine.keyboard.state_questions, 0);
  int given = 0;
  for (const char* light : {"DLSwitchScr", "ULSwitchNum"}) {
    Set(light, 1);
    Update(5000, 5000);
    EXPECT_EQ(machine.keyboard.states[kScroll] + machine.keyboard.states[kNum], ++given);
    Set("DLSwitchScr", 0);
  }
  Set("DLSwitchScr", 1);
  machine.keyboard.states[kScroll] = 0x81;
  machine.keyboard.sent.clear();
  Update(0, 0);
  EXPECT_EQ(machine.keyboard.sent, (Strokes{{kNum, 69, 1}, {kNum, 69, 3}})) << "one scan code";
}

}  // namespace
