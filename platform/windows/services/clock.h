// The system's clocks.
#pragma once

#include "platform/clock.h"

namespace platform::windows {

class Clock : public platform::Clock {
 public:
  [[nodiscard]] DateTime Now() override;
  [[nodiscard]] std::int64_t SteadyMilliseconds() override;
};

}  // namespace platform::windows
