#include "platform/date_time.h"

#include <gtest/gtest.h>

#include <limits>

namespace platform {
namespace {

struct Row {
  const char* why;
  DateTime number;
  CivilDate date;
  ClockTime time;
  int day_of_week = 0;
};

void Decoded(const Row& row) {
  EXPECT_EQ(DecodeDate(row.number), row.date);
  EXPECT_EQ(DecodeTime(row.number), row.time);
}

TEST(DateTime, DatesTimesAndNumbersGoBothWays) {
  for (const Row& row : {
           Row{"the count starts here, on a Saturday", 0, {1899, 12, 30}, {}, 7},
           Row{"the day before it, a Friday", -1, {1899, 12, 29}, {}, 6},
           Row{"a Sunday is 1", 45662, {2025, 1, 5}, {}, 1},
           Row{"the calendar's first day", -693593, {1, 1, 1}, {}, 2},
           Row{"the calendar's last day", 2958465, {9999, 12, 31}, {}, 6},
           Row{"noon is a half", 45657.5, {2024, 12, 31}, {12, 0, 0, 0}, 3},
           Row{"a millisecond", 45657 + 1 / 86400000.0, {2024, 12, 31}, {0, 0, 0, 1}, 3},
           Row{"the last", 45657 + 86399999 / 86400000.0, {2024, 12, 31}, {23, 59, 59, 999}, 3},
           Row{"below zero it counts on from midnight", -1.25, {1899, 12, 29}, {6, 0, 0, 0}, 6},
       }) {
    SCOPED_TRACE(row.why);
    const auto& [year, month, day] = row.date;
    const auto& [hour, minute, second, millisecond] = row.time;
    EXPECT_EQ(EncodeDateTime(year, month, day, hour, minute, second, millisecond), row.number);
    EXPECT_EQ(DateOf(row.number), EncodeDate(year, month, day));
    EXPECT_EQ(DayOfWeek(row.number), row.day_of_week);
    Decoded(row);
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
  for (const Row& row : {
           Row{"no number", std::numeric_limits<double>::quiet_NaN(), {1899, 12, 30}, {}},
           Row{"endless", kInfinity, {9999, 12, 31}, {}},
           Row{"endlessly long ago", -kInfinity, {1, 1, 1}, {}},
           Row{"far beyond every calendar", 1e300, {9999, 12, 31}, {}},
           Row{"a day too late", 2958466, {9999, 12, 31}, {}},
           Row{"a day too early", -693594, {1, 1, 1}, {}},
           Row{"a time that rounds up", 45657.9999999999, {2024, 12, 31}, {23, 59, 59, 999}},
           Row{"less than a millisecond", 1e-300, {1899, 12, 30}, {}},
       }) {
    SCOPED_TRACE(row.why);
    Decoded(row);
    EXPECT_GE(DayOfWeek(row.number), 1);
    EXPECT_LE(DayOfWeek(row.number), 7);
  }
}

}  // namespace
}  // namespace platform
