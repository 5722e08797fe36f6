#include "platform/date_time.h"

#include <cmath>

namespace platform {
namespace {

constexpr double kMillisecondsPerDay = 86400000.0;

// Days from 0000-03-01 to 1899-12-30. The count starts in March so that the leap day ends its year,
// and months then begin at (153 * month + 2) / 5.
constexpr int kDaysToEpoch = 693899;
constexpr int kDaysPer400Years = 146097;

constexpr int kFirstDay = -693593;  // 0001-01-01
constexpr int kLastDay = 2958465;   // 9999-12-31

constexpr int DaysSinceEpoch(int year, int month, int day) {
  const int shifted_year = month > 2 ? year : year - 1;
  const int era = (shifted_year >= 0 ? shifted_year : shifted_year - 399) / 400;
  const int year_of_era = shifted_year - era * 400;
  const int month_from_march = month > 2 ? month - 3 : month + 9;
  const int day_of_year = (153 * month_from_march + 2) / 5 + day - 1;
  const int day_of_era = year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year;
  return era * kDaysPer400Years + day_of_era - kDaysToEpoch;
}
static_assert(DaysSinceEpoch(1899, 12, 30) == 0);
static_assert(DaysSinceEpoch(1, 1, 1) == kFirstDay);
static_assert(DaysSinceEpoch(9999, 12, 31) == kLastDay);

// Returns the whole days of `moment`, moved into the calendar's range.
int DayNumber(DateTime moment) {
  if (std::isnan(moment)) return 0;
  if (moment <= kFirstDay) return kFirstDay;
  if (moment >= kLastDay) return kLastDay;
  return static_cast<int>(moment);
}

}  // namespace

DateTime EncodeDate(int year, int month, int day) { return DaysSinceEpoch(year, month, day); }

DateTime EncodeDateTime(int year, int month, int day, int hour, int minute, int second,
                        int millisecond) {
  const DateTime date = EncodeDate(year, month, day);
  const int milliseconds = ((hour * 60 + minute) * 60 + second) * 1000 + millisecond;
  const double fraction = milliseconds / kMillisecondsPerDay;
  return date < 0 ? date - fraction : date + fraction;
}

CivilDate DecodeDate(DateTime moment) {
  // The number is never negative: the first day of the range lies 306 days after the count's start.
  const int days = DayNumber(moment) + kDaysToEpoch;
  const int era = days / kDaysPer400Years;
  const int day_of_era = days % kDaysPer400Years;
  const int year_of_era =
      (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
  const int day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
  const int month_from_march = (5 * day_of_year + 2) / 153;
  CivilDate date;
  date.day = day_of_year - (153 * month_from_march + 2) / 5 + 1;
  date.month = month_from_march < 10 ? month_from_march + 3 : month_from_march - 9;
  date.year = era * 400 + year_of_era + (date.month <= 2 ? 1 : 0);
  return date;
}

ClockTime DecodeTime(DateTime moment) {
  if (!std::isfinite(moment)) return {};
  auto rest = static_cast<int>(std::lround(TimeOf(moment) * kMillisecondsPerDay));
  if (rest >= 86400000) rest = 86399999;
  ClockTime time;
  time.millisecond = rest % 1000;
  rest /= 1000;
  time.second = rest % 60;
  rest /= 60;
  time.minute = rest % 60;
  time.hour = rest / 60;
  return time;
}

DateTime DateOf(DateTime moment) { return std::trunc(moment); }

DateTime TimeOf(DateTime moment) { return std::fabs(moment - std::trunc(moment)); }

int DayOfWeek(DateTime moment) {
  // 1899-12-30 was a Saturday.
  const int from_saturday = (DayNumber(moment) % 7 + 7) % 7;
  return from_saturday == 0 ? 7 : from_saturday;
}

}  // namespace platform
