// The user's wall clock and a steady one.
#pragma once

#include <cstdint>

#include "platform/date_time.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;

  // Returns the local date and time, to the millisecond (GetLocalTime). The user may set the clock
  // back.
  [[nodiscard]] virtual DateTime Now() = 0;

  // Returns milliseconds that never run backwards and that setting the date does not change
  // (GetTickCount64).
  [[nodiscard]] virtual std::int64_t SteadyMilliseconds() = 0;
};

}  // namespace platform
