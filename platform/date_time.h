// Dates and times of day as one number, and the calendar over it.
#pragma once

namespace platform {

// Days since 1899-12-30, local time; the fraction is the time of day. This is the form in which
// dates are stored, so two dates are compared as exact doubles.
//
// Before that day the whole part counts backwards while the fraction still counts on from midnight,
// as in the system's own automation dates: -1.25 is 06:00 on 1899-12-29.
using DateTime = double;

struct CivilDate {
  int year = 1899;
  int month = 12;  // 1 to 12
  int day = 30;    // 1 to 31
  friend bool operator==(const CivilDate&, const CivilDate&) = default;
};

struct ClockTime {
  int hour = 0;         // 0 to 23
  int minute = 0;       // 0 to 59
  int second = 0;       // 0 to 59
  int millisecond = 0;  // 0 to 999
  friend bool operator==(const ClockTime&, const ClockTime&) = default;
};

// Returns the moment at midnight of a date of the Gregorian calendar. The date must exist.
[[nodiscard]] DateTime EncodeDate(int year, int month, int day);

// Returns the moment at a time of day of such a date: hour 0 to 23, minute and second 0 to 59,
// millisecond 0 to 999.
[[nodiscard]] DateTime EncodeDateTime(int year, int month, int day, int hour, int minute,
                                      int second, int millisecond = 0);

// Returns the calendar date that `moment` lies in. A stored moment may be any double: one outside
// the years 1 to 9999 gives the first or last day of these years, one that is not a number gives
// 1899-12-30.
[[nodiscard]] CivilDate DecodeDate(DateTime moment);

// Returns the time of day of `moment` to the nearest millisecond, never past 23:59:59.999.
[[nodiscard]] ClockTime DecodeTime(DateTime moment);

// Returns midnight at the start of the day of `moment`.
[[nodiscard]] DateTime DateOf(DateTime moment);

// Returns the time of day alone: 0.0 up to, but not including, 1.0.
[[nodiscard]] DateTime TimeOf(DateTime moment);

// Returns the day of the week: 1 = Sunday ... 7 = Saturday.
[[nodiscard]] int DayOfWeek(DateTime moment);

}  // namespace platform
