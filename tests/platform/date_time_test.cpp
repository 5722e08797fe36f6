#include "platform/date_time.h"

#include <gtest/gtest.h>

#include <limits>

namespace platform {
namespace {

TEST(DateTime, DatesAndNumbersGoBothWays) {
  struct Row {
    const char* why;
    CivilDate date;
    DateTime number;
    int day_of_week;
  };
  static constexpr Row kRows[] = {
      {"the count starts here, on a Saturday", {1899, 12, 30}, 0, 7},
      {"the day before it, a Friday", {1899, 12, 29}, -1, 6},
      {"a Sunday is 1", {2025, 1, 5}, 45662, 1},
      {"the calendar's first day", {1, 1, 1}, -693593, 2},
      {"the calendar's last day", {9999, 12, 31}, 2958465, 6},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(EncodeDate(row.date.year, row.date.month, row.date.day), row.number);
    EXPECT_EQ(DecodeDate(row.number), row.date);
    EXPECT_EQ(DayOfWeek(row.number), row.day_of_week);
  }
}

TEST(DateTime, EveryDayOfFourCenturiesFollowsTheDayBefore) {
  CivilDate before = DecodeDate(EncodeDate(1700, 12, 31));
  for (DateTime day = EncodeDate(1701, 1, 1); day <= EncodeDate(2101, 1, 1); ++day) {
    const CivilDate date = DecodeDate(day);
    ASSERT_EQ(EncodeDate(date.year, date.month, date.day), day);
    const bool next_day =
        date.year == before.year && date.month == before.month && date.day == before.day + 1;
    const bool next_month =
        date.year == before.year && date.month == before.month + 1 && date.day == 1;
    const bool next_year = date == CivilDate{before.year + 1, 1, 1} && before.day == 31;
    ASSERT_TRUE(next_day || next_month || next_year) << day;
    before = date;
  }
}

TEST(DateTime, ATimeOfDayIsTheFractionOnBothSidesOfTheCountsStart) {
  struct Row {
    const char* why;
    CivilDate date;
    ClockTime time;
    DateTime number;
  };
  static constexpr Row kRows[] = {
      {"noon is a half", {2024, 12, 31}, {12, 0, 0, 0}, 45657.5},
      {"a millisecond is not lost", {2024, 12, 31}, {0, 0, 0, 1}, 45657.0 + 1 / 86400000.0},
      {"the last one stays in its day",
       {2024, 12, 31},
       {23, 59, 59, 999},
       45657.0 + 86399999 / 86400000.0},
      {"below zero the fraction counts on from midnight", {1899, 12, 29}, {6, 0, 0, 0}, -1.25},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(EncodeDateTime(row.date.year, row.date.month, row.date.day, row.time.hour,
                             row.time.minute, row.time.second, row.time.millisecond),
              row.number);
    EXPECT_EQ(DecodeDate(row.number), row.date);
    EXPECT_EQ(DecodeTime(row.number), row.time);
    EXPECT_EQ(DateOf(row.number), EncodeDate(row.date.year, row.date.month, row.date.day));
  }
}

TEST(DateTime, EverySecondOfADaySurvives) {
  for (int second = 0; second < 86400; ++second) {
    const ClockTime time{second / 3600, second / 60 % 60, second % 60, second % 1000};
    const DateTime moment =
        EncodeDateTime(2038, 1, 19, time.hour, time.minute, time.second, time.millisecond);
    ASSERT_EQ(DecodeTime(moment), time);
    ASSERT_EQ(DateOf(moment), EncodeDate(2038, 1, 19));
  }
}

TEST(DateTime, WhatWasStoredMayBeAnything) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  struct Row {
    const char* why;
    DateTime number;
    CivilDate date;
    ClockTime time;
  };
  const Row rows[] = {
      {"no number", std::numeric_limits<double>::quiet_NaN(), {1899, 12, 30}, {}},
      {"endless", kInfinity, {9999, 12, 31}, {}},
      {"endlessly long ago", -kInfinity, {1, 1, 1}, {}},
      {"far beyond every calendar", 1e300, {9999, 12, 31}, {}},
      {"a day too late", 2958466, {9999, 12, 31}, {}},
      {"a day too early", -693594, {1, 1, 1}, {}},
      {"a time that rounds up to the next day",
       45657.9999999999,
       {2024, 12, 31},
       {23, 59, 59, 999}},
      {"less than a millisecond", 1e-300, {1899, 12, 30}, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(DecodeDate(row.number), row.date);
    EXPECT_EQ(DecodeTime(row.number), row.time);
    EXPECT_GE(DayOfWeek(row.number), 1);
    EXPECT_LE(DayOfWeek(row.number), 7);
  }
}

}  // namespace
}  // namespace platform
