// Time that stands still until a test moves it.
#pragma once

#include "platform/clock.h"

namespace platform::memory {

class Clock : public platform::Clock {
 public:
  [[nodiscard]] DateTime Now() override;
  [[nodiscard]] std::int64_t SteadyMilliseconds() override { return steady_; }

  // Acts as the user who sets the date; the steady clock stays.
  void SetNow(DateTime now);
  // Lets time pass on both clocks.
  void Advance(std::int64_t milliseconds);

 private:
  DateTime base_ = EncodeDateTime(2024, 5, 15, 12, 0, 0);  // a Wednesday, far from every boundary
  std::int64_t since_base_ = 0;                            // milliseconds
  std::int64_t steady_ = 1000000;                          // the machine has been on for a while
};

}  // namespace platform::memory
