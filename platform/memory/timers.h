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
  explicit Timers(Clock& clock) : clock_(clock) {}

  [[nodiscard]] std::unique_ptr<Timer> Start(int milliseconds, std::function<void()> tick) override;

  // Lets time pass on both clocks and runs the timers that fall due, in order.
  void Advance(std::int64_t milliseconds);
  // Lets time pass without a tick, as when the thread was busy. A timer that fell due ticks once at
  // the next Advance.
  void Stall(std::int64_t milliseconds) { clock_.Advance(milliseconds); }

  [[nodiscard]] int Running() const { return static_cast<int>(entries_->size()); }
  // The number of calls of Start so far.
  int started = 0;

 private:
  struct Entry;

  Clock& clock_;
  // Shared with the entries, which may outlive this.
  std::shared_ptr<std::vector<Entry*>> entries_ = std::make_shared<std::vector<Entry*>>();
};

}  // namespace platform::memory
