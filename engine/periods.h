// When a day, week or month of the statistics is over.
#pragma once

#include <array>

#include "engine/counter_group.h"
#include "platform/date_time.h"
#include "settings/store.h"

namespace engine {

// Returns the number of the week, 1 to 53, with weeks that begin on Monday. The last days of
// December never give 1. A date with a time of day is rounded to the nearest day, so that an
// afternoon counts as the next day.
[[nodiscard]] int WeekOfYear(platform::DateTime date);

enum class Period { kDay, kWeek, kMonth };

// The periods in the order in which they are brought up to date.
inline constexpr std::array kPeriods = {Period::kDay, Period::kWeek, Period::kMonth};

[[nodiscard]] const CounterGroup& CountersOf(Period period);

// How a stored marker ("CurrentDay", "CurrentWeek", "CurrentMonth") compares with today.
enum class MarkerAge {
  kSame,  // the marker is today's
  kNext,  // a neighbour: the old period is over once the start day is reached
  kFar,   // too far away to wait for a start day
};

// The rules of the periods on one date. The markers are the same for the machine and all adapters.
class Periods {
 public:
  //   today  midnight of the local date
  Periods(settings::Store& store, platform::DateTime today);

  // Reads the period's marker and returns its age.
  //   day    another date is kNext, and every day has begun: it rolls over at once.
  //   week   one number higher is kNext; lower (a new year, a clock set back) or further is kFar.
  //   month  one number higher or lower is kNext, all else kFar: from 12 to 1 rolls over at once.
  [[nodiscard]] MarkerAge Age(Period period) const;

  // Returns whether today is the start day of the new period or later. Reads "wPerStartsOn" (1 =
  // Sunday ... 7 = Saturday; a smaller value means the day on which the week number changes) or
  // "mPerStartsOn" (the month starts on the day after the stored one).
  [[nodiscard]] bool HasStarted(Period period) const;

  // Begins today's period for the machine: writes the period's marker, writes "0" to its counters,
  // and allows the bandwidth alert again. Throws std::runtime_error when the system refuses a
  // write; what was written before stays.
  void RollOver(Period period) const;

 private:
  void WriteMarker(Period period) const;

  settings::Store& store_;
  platform::DateTime today_;
  int week_;
  platform::CivilDate date_;
};

}  // namespace engine
