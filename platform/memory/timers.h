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

  // Lets the time pass, on both clocks, and ticks what falls due, in order.
  void Advance(std::int64_t milliseconds);
  // Lets the time pass without ticking, as when the thread was busy; what fell due ticks once at
  // the next Advance.
  void Stall(std::int64_t milliseconds);

  [[nodiscard]] int Running() const;
  // Calls of Start so far, and the interval of the last one.
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
