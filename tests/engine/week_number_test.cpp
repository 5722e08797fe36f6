#include <gtest/gtest.h>

#include "engine/periods.h"

namespace {

using engine::WeekOfYear;
using platform::EncodeDate;
using platform::EncodeDateTime;

TEST(WeekNumber, ATimeOfDayCountsToTheNearestDay) {
  // 2024-05-19 is the Sunday of week 20.
  EXPECT_EQ(WeekOfYear(EncodeDateTime(2024, 5, 19, 11, 59, 59)), 20);
  EXPECT_EQ(WeekOfYear(EncodeDateTime(2024, 5, 19, 12, 0, 1)), 21);
  EXPECT_EQ(WeekOfYear(EncodeDateTime(2024, 5, 18, 23, 59, 59)), 20);
}

// The week of a day has the number of its Thursday's week; only the Monday to Wednesday before a
// Thursday of the next year are counted on instead, so that no day of December is in week 1.
TEST(WeekNumber, AgreesWithTheThursdayOfTheWeek) {
  for (platform::DateTime day = EncodeDate(1990, 1, 1); day < EncodeDate(2060, 1, 1); day += 1) {
    const int days_after_monday = (platform::DayOfWeek(day) + 5) % 7;
    const platform::DateTime thursday = day - days_after_monday + 3;
    const int thursday_year = platform::DecodeDate(thursday).year;
    const int day_of_year = static_cast<int>(thursday - EncodeDate(thursday_year, 1, 1));
    const bool next_year = thursday_year > platform::DecodeDate(day).year;
    ASSERT_EQ(WeekOfYear(day), next_year ? 53 : day_of_year / 7 + 1) << day;
  }
}

}  // namespace
