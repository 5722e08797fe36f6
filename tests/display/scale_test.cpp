#include "display/graph/scale.h"

#include <gtest/gtest.h>

namespace {

using display::GraphSample;
using display::ScaleFor;
using display::ScaleRule;
using display::ScaleUnits;

TEST(GraphScale, EdgesAreRoundAndTheLowerLeavesZeroOnlyForASteadyLoad) {
  constexpr std::int32_t kK = 1024;
  constexpr ScaleUnits kBytes = ScaleUnits::kKBytes;
  constexpr ScaleUnits kBits = ScaleUnits::kKBits;
  struct Row {
    const char* why;
    GraphSample sample;
    ScaleUnits units;
    std::int64_t low, high;
    bool zero_based = false;
  };
  static constexpr Row kRows[] = {
      {"an idle line", {0, 0}, kBytes, 0, kK},
      {"on the edge", {0, 1024}, kBytes, 0, kK},
      {"just above", {0, 1025}, kBytes, 0, 2 * kK},
      {"999 kB", {0, 999 * kK}, kBytes, 0, kK * kK},
      {"megabytes begin at 1000", {0, 1000 * kK}, kBytes, 0, kK * kK},
      {"the largest", {0, 2147483647}, kBytes, 0, 2LL << 30},
      {"kilobits", {0, 1000}, kBits, 0, 10 * kK / 8},
      {"steady", {587 * kK, 534 * kK}, kBytes, 200 * kK, kK * kK},
      {"steady in bits", {587 * kK, 534 * kK}, kBits, 2 * kK * kK / 8, 5 * kK * kK / 8},
      {"zero based", {587 * kK, 534 * kK}, kBytes, 0, kK * kK, true},
      {"four fifths", {1000 * kK, 800 * kK}, kBytes, 0, kK * kK},
      {"just above them", {1000 * kK, 801 * kK}, kBytes, 200 * kK, kK * kK},
      {"one way idle", {587 * kK, 0}, kBytes, 0, kK * kK},
      {"half of it is a unit", {2 * kK, 2 * kK}, kBytes, kK, 2 * kK},
      {"less than the unit", {900, 900}, kBytes, 0, kK},
      {"between two units", {2040 * kK, 2020 * kK}, kBytes, 500 * kK, 2 * kK * kK},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    const auto scale = ScaleFor({&row.sample, 1}, {true, 0, row.zero_based, row.units});
    EXPECT_EQ(scale.low, row.low);
    EXPECT_EQ(scale.high, row.high);
  }
}

TEST(GraphScale, TheEdgesOfAFixedScaleNeverMeetAndNothingLeavesThePicture) {
  const GraphSample samples[] = {{8500, 8600}, {8700, 9000}};
  ScaleRule rule;
  rule.AutoScale = false;
  for (const std::int64_t limit : {std::int64_t{0}, std::int64_t{-5}, std::int64_t{1800}}) {
    rule.SpeedLimit = limit;  // all amounts above the limit
    const display::GraphScale scale = ScaleFor(samples, rule);
    EXPECT_LT(scale.low, scale.high);
    EXPECT_EQ(scale.high, std::max<std::int64_t>(limit, 1));
    EXPECT_EQ(scale.HeightOf(9000, 50), 50);
  }
  const display::GraphScale scale{1000, 2000};
  for (const auto& [amount, height] : {std::pair<std::int64_t, int>{0, 0},
                                       {-1, 0},
                                       {1, 1},
                                       {1500, 25},
                                       {2000, 50},
                                       {1LL << 40, 50}}) {
    EXPECT_EQ(scale.HeightOf(amount, 50), height) << amount;
  }
}

TEST(GraphScale, TextsHaveThreeDigitsAtTheMost) {
  using enum ScaleUnits;
  for (const auto& [bytes, units, text] : {std::tuple{std::int64_t{0}, kKBytes, "0 kB"},
                                           {512, kKBytes, "0,5 kB"},
                                           {1024, kKBytes, "1 kB"},
                                           {99 * 1024 + 512, kKBytes, "99,5 kB"},
                                           {100 * 1024 + 512, kKBytes, "100 kB"},
                                           {1000 * 1024, kKBytes, "0,9 MB"},
                                           {12500000, kKBytes, "11,9 MB"},
                                           {128, kKBits, "1 kb"},
                                           {12500000, kKBits, "95,3 Mb"},
                                           {2LL << 50, kKBytes, "2 PB"}}) {
    EXPECT_EQ(ScaleText(bytes, units, ","), text);
  }
}

}  // namespace
