#include "engine/periods.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

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

namespace {

namespace setting = settings::setting;

MarkerAge DayAge(platform::DateTime today, platform::DateTime marker) {
  return marker == today ? MarkerAge::kSame : MarkerAge::kNext;
}

MarkerAge WeekAge(std::int64_t week, std::int64_t marker) {
  const std::int64_t difference = week - marker;
  if (difference >= 2 || difference < 0) return MarkerAge::kFar;
  return difference == 0 ? MarkerAge::kSame : MarkerAge::kNext;
}

// Unlike a week, a month that is one lower waits for its start day as well.
MarkerAge MonthAge(std::int64_t month, std::int64_t marker) {
  const std::int64_t difference = month - marker;
  if (difference >= 2 || difference <= -2) return MarkerAge::kFar;
  return difference == 0 ? MarkerAge::kSame : MarkerAge::kNext;
}

}  // namespace

const CounterGroup& CountersOf(Period period) {
  static constexpr const CounterGroup* kGroups[] = {&kDayGroup, &kWeekGroup, &kMonthGroup};
  return *kGroups[static_cast<std::size_t>(period)];
}

Periods::Periods(settings::Store& store, platform::DateTime today)
    : store_(store), today_(today), week_(WeekOfYear(today)), date_(platform::DecodeDate(today)) {}

MarkerAge Periods::Age(Period period) const {
  switch (period) {
    case Period::kDay:
      return DayAge(today_, store_.Read(setting::CurrentDay, today_));
    case Period::kWeek:
      return WeekAge(week_, store_.Read(setting::CurrentWeek));
    case Period::kMonth:
      break;
  }
  return MonthAge(date_.month, store_.Read(setting::CurrentMonth));
}

bool Periods::HasStarted(Period period) const {
  switch (period) {
    case Period::kDay:
      return true;
    case Period::kWeek:
      return platform::DayOfWeek(today_) >= store_.Read(setting::wPerStartsOn);
    case Period::kMonth:
      break;
  }
  // The scan has its own default: without a stored day the month starts on the 1st.
  return date_.day >= store_.ReadWith(setting::mPerStartsOn, 0) + 1;
}

void Periods::RollOver(Period period) const {
  WriteMarker(period);
  CounterOwner::Machine(store_).Reset(CountersOf(period));
  store_.Write(setting::BAShow, false);
}

void Periods::WriteMarker(Period period) const {
  switch (period) {
    case Period::kDay:
      store_.Write(setting::CurrentDay, today_);
      break;
    case Period::kWeek:
      store_.Write(setting::CurrentWeek, week_);
      break;
    case Period::kMonth:
      store_.Write(setting::CurrentMonth, date_.month);
      break;
  }
}

}  // namespace engine
