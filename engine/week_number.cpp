#include "engine/week_number.h"

#include <cmath>

namespace engine {
namespace {

// Returns the weekday of 31 December: 1 = Monday ... 6 = Saturday, 0 = Sunday.
int WeekdayOfYearEnd(int year) {
  constexpr int kDayCountOfOrigin = 693594;  // of 1899-12-30, 1 January of year 1 being day 1
  return (static_cast<int>(platform::EncodeDate(year, 12, 31)) + kDayCountOfOrigin) % 7;
}

// A year's first days belong to its week 1 when the old year ended before Thursday.
bool BeginsWithWeekOne(int weekday_of_old_years_end) { return weekday_of_old_years_end < 4; }

}  // namespace

int WeekOfYear(platform::DateTime date) {
  const int year = platform::DecodeDate(date).year;
  const int weekday = WeekdayOfYearEnd(year - 1);
  const double days = date - platform::EncodeDate(year, 1, 1) + weekday;
  const int week =
      static_cast<int>(std::nearbyint(days)) / 7 + (BeginsWithWeekOne(weekday) ? 1 : 0);
  if (week > 0) return week;
  return BeginsWithWeekOne(WeekdayOfYearEnd(year - 2)) ? 53 : 52;
}

}  // namespace engine
