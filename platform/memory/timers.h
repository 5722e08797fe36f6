// Timers that tests advance.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/memory/clock.h"
#include "platform/timers.h"

namespace platform::memory {

class Timers final : public platform::Timers {
 public:
  explicit Timers(Clock& clock) : clock_(clock) {}

  std::unique_ptr<Timer> Start(int milliseconds, std::function<void()> tick) override {
    ++started;
    return std::make_unique<Entry>(entries_, clock_.SteadyMilliseconds() + milliseconds,
                                   milliseconds, std::move(tick));
  }

  // Lets time pass on both clocks and runs the timers that fall due, in order.
  void Advance(std::int64_t milliseconds) {
    const std::int64_t until = clock_.SteadyMilliseconds() + milliseconds;
    for (;;) {
      const auto next = std::ranges::min_element(*entries_, {}, &Entry::due);
      if (next == entries_->end() || (*next)->due > until) break;
      Entry& entry = **next;
      AdvanceTo(entry.due);
      while (entry.due <= clock_.SteadyMilliseconds()) entry.due += entry.interval;
      const std::function<void()> tick = entry.tick;  // the tick may destroy its timer
      tick();
    }
    AdvanceTo(until);
  }
  // Lets time pass without a tick, as when the thread was busy. A timer that fell due ticks once at
  // the next Advance.
  void Stall(std::int64_t milliseconds) { clock_.Advance(milliseconds); }

  [[nodiscard]] int Running() const { return static_cast<int>(entries_->size()); }
  // The number of calls of Start so far.
  int started = 0;

 private:
  struct Entry final : Timer {
    Entry(std::shared_ptr<std::vector<Entry*>> all, std::int64_t first, int milliseconds,
          std::function<void()> does)
        : entries(std::move(all)), due(first), interval(milliseconds), tick(std::move(does)) {
      entries->push_back(this);
    }
    ~Entry() override { std::erase(*entries, this); }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

    std::shared_ptr<std::vector<Entry*>> entries;
    std::int64_t due;
    int interval;
    std::function<void()> tick;
  };

  // Unless a tick has taken longer.
  void AdvanceTo(std::int64_t steady) {
    clock_.Advance(std::max<std::int64_t>(0, steady - clock_.SteadyMilliseconds()));
  }

  Clock& clock_;
  // Shared with the entries, which may outlive this.
  std::shared_ptr<std::vector<Entry*>> entries_ = std::make_shared<std::vector<Entry*>>();
};

}  // namespace platform::memory
