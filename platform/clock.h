// The user's wall clock and a steady one.
#pragma once

#include <cstdint>

#include "platform/date_time.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;

  // Local date and time, to the millisecond (GetLocalTime). The user may set it back.
  [[nodiscard]] virtual DateTime Now() = 0;

  // Milliseconds that never run backwards and are not moved by setting the date (GetTickCount64).
  [[nodiscard]] virtual std::int64_t SteadyMilliseconds() = 0;
};

}  // namespace platform
