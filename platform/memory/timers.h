// Timers that tests advance.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "platform/memory/clock.h"
#include "platform/timers.h"

namespace platform::memory {

class Timers final : public platform::Timers {
 public:
  explicit Timers(Clock& clock);
  ~Timers() override;

  [[nodiscard]] std::unique_ptr<Timer> Start(int milliseconds, std::function<void()> tick) override;

  // Lets time pass on both clocks and runs the timers that fall due, in order.
  void Advance(std::int64_t milliseconds);
  // Lets time pass without a tick, as when the thread was busy. A timer that fell due ticks once at
  // the next Advance.
  void Stall(std::int64_t milliseconds);

  [[nodiscard]] int Running() const;
  // The number of calls of Start so far, and the interval of the last one in milliseconds.
  int started = 0;
  int last_interval = 0;

 private:
  struct Entry;
  class Handle;

  std::shared_ptr<Entry> NextDue(std::int64_t until) const;

  Clock& clock_;
  std::vector<std::weak_ptr<Entry>> entries_;
};

}  // namespace platform::memory
