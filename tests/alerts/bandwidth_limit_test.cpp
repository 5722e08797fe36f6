#include <gtest/gtest.h>

#include "alerts/bandwidth_alert.h"
#include "settings/value_texts.h"
#include "tests/alerts/alerts_world.h"

namespace {

class BandwidthLimit : public test::AlertsTest {
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
    bool download, upload;
    const char* total_dl;
    const char* total_ul;
    bool alerts;
  };
  static constexpr const char* kDl[] = {"CurrentDayTotalDL", "CurrentWeekTotalDL",
                                        "CurrentMonthTotalDL"};
  static constexpr const char* kUl[] = {"CurrentDayTotalUL", "CurrentWeekTotalUL",
                                        "CurrentMonthTotalUL"};
  static constexpr Row kRows[] = {
      {"a byte below", 0, true, false, "10485759", "99999999", false},
      {"the exact byte", 0, true, false, "10485760", "0", true},
      {"upload alone", 0, false, true, "99999999", "10485759", false},
      {"upload reached", 0, false, true, "0", "10485760", true},
      {"the sum of both", 0, true, true, "6291456", "5242880", true},
      {"no direction", 0, false, false, "99999999", "99999999", false},
      {"the week", 1, true, false, "10485760", "0", true},
      {"the month", 2, true, false, "10485760", "0", true},
      {"a period that does not exist", 3, true, true, "99999999", "99999999", false},
      {"near the largest number", 0, true, true, "9223372036854775807", "1", false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Set("BAShow", 0);
    Set("BADayWeekMonth", row.period);
    Set("baDownload", row.download);
    Set("baUpload", row.upload);
    for (int period = 0; period < 3; ++period) {
      SetText(kDl[period], period == row.period || row.period > 2 ? row.total_dl : "0");
      SetText(kUl[period], period == row.period || row.period > 2 ? row.total_ul : "0");
    }
    EXPECT_EQ(Alerts(), row.alerts);
    EXPECT_FALSE(Alerts()) << "only once in a period";
  }
}

TEST_F(BandwidthLimit, KnowsItsThreeUnitsAndNoOther) {
  struct Row {
    std::int64_t unit;
    std::int64_t limit;
  };
  static constexpr Row kRows[] = {{0, 7LL << 10}, {1, 7LL << 20}, {2, 7LL << 30}};
  Set("MoreThan", 7);
  for (const Row& row : kRows) {
    Set("AlertsMoreThan", row.unit);
    EXPECT_EQ(alerts::LimitBytes(store), row.limit);
  }
  SetText("CurrentDayTotalDL", "9223372036854775807");
  for (const std::int64_t unit : {-1, 3, 64}) {
    Set("AlertsMoreThan", unit);
    EXPECT_FALSE(alerts::LimitBytes(store).has_value());
    EXPECT_FALSE(Alerts());
  }
}

TEST_F(BandwidthLimit, ATotalThatIsNoNumberEndsTheScan) {
  SetText("CurrentDayTotalDL", "a lot");
  EXPECT_THROW(Alerts(), settings::ConversionError);
  EXPECT_FALSE(store.ReadBool("BAShow", false));
}

}  // namespace
