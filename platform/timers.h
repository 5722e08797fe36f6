// Timers of the user interface.
#pragma once

#include <functional>
#include <memory>

namespace platform {

// A timer, which runs while it exists.
class Timer {
 public:
  virtual ~Timer() = default;
};

class Timers {
 public:
  virtual ~Timers() = default;

  // Calls `tick` every `milliseconds` (10 to 2147483647) from the message loop, also while a menu
  // is open or a window is dragged. Ticks that the loop could not deliver in time are merged into
  // one. `tick` may destroy the timer. Returns null when the system refuses.
  [[nodiscard]] virtual std::unique_ptr<Timer> Start(int milliseconds,
                                                     std::function<void()> tick) = 0;
};

}  // namespace platform
