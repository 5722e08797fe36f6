#include <gtest/gtest.h>

#include "engine/periods.h"

namespace {

using engine::WeekOfYear;
using platform::EncodeDate;
using platform::EncodeDateTime;

TEST(WeekNumber, OfDatesAroundTheTurnOfTheYear) {
  struct Row {
    const char* why;
    platform::DateTime date;
    int week;
  };
  const Row rows[] = {
      {"1 January on a Monday", EncodeDate(2024, 1, 1), 1},
      {"first Sunday", EncodeDate(2024, 1, 7), 1},
      {"second Monday", EncodeDate(2024, 1, 8), 2},
      {"1 January on a Thursday", EncodeDate(2015, 1, 1), 1},
      {"on a Friday, after a year of 53 weeks", EncodeDate(2021, 1, 1), 53},
      {"on a Friday, after another", EncodeDate(2016, 1, 1), 53},
      {"on a Saturday, after 52 weeks", EncodeDate(2022, 1, 1), 52},
      {"on a Sunday, after 52 weeks", EncodeDate(2023, 1, 1), 52},
      {"the first Monday then", EncodeDate(2023, 1, 2), 1},
      {"the last days of December are never week 1", EncodeDate(2024, 12, 30), 53},
      {"nor this one", EncodeDate(2019, 12, 31), 53},
      {"the Sunday before", EncodeDate(2024, 12, 29), 52},
      {"a leap day", EncodeDate(2024, 2, 29), 9},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(WeekOfYear(row.date), row.week);
  }
}

TEST(WeekNumber, ATimeOfDayCountsToTheNearestDay) {
  // 2024-05-19 is the Sunday of week 20.
  EXPECT_EQ(WeekOfYear(EncodeDateTime(2024, 5, 19, 11, 59, 59)), 20);
  EXPECT_EQ(WeekOfYear(EncodeDateTime(2024, 5, 19, 12, 0, 1)), 21);
  EXPECT_EQ(WeekOfYear(EncodeDateTime(2024, 5, 18, 23, 59, 59)), 20);
}

// The week of a day has the number of its Thursday's week; only the Monday to Wednesday before a
// Thursday of the next year are counted on instead.
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
