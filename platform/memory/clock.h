// Time that stands still until a test moves it.
#pragma once

#include <cmath>

#include "platform/clock.h"

namespace platform::memory {

class Clock : public platform::Clock {
 public:
  // A day and its fraction are added, so that a moment reached by Advance is the same double as an
  // encoded one.
  DateTime Now() override {
    const std::int64_t days = now_ / kDay;
    return static_cast<DateTime>(days) + static_cast<DateTime>(now_ % kDay) / kDay;
  }
  std::int64_t SteadyMilliseconds() override { return steady_; }

  // Acts as the user who sets the date, to the millisecond; the steady clock stays.
  void SetNow(DateTime now) { now_ = std::llround(now * kDay); }
  // Lets time pass on both clocks.
  void Advance(std::int64_t milliseconds) {
    now_ += milliseconds;
    steady_ += milliseconds;
  }

 private:
  static constexpr std::int64_t kDay = 86400000;

  // Both in milliseconds. The day is a Wednesday, far from every boundary; the machine has been on
  // for a while.
  std::int64_t now_ = std::llround(EncodeDateTime(2024, 5, 15, 12, 0, 0) * kDay);
  std::int64_t steady_ = 1000000;
};

}  // namespace platform::memory
