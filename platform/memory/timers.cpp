#include "platform/memory/timers.h"

#include <algorithm>
#include <utility>

namespace platform::memory {

struct Timers::Entry final : Timer {
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

std::unique_ptr<Timer> Timers::Start(int milliseconds, std::function<void()> tick) {
  ++started;
  return std::make_unique<Entry>(entries_, clock_.SteadyMilliseconds() + milliseconds, milliseconds,
                                 std::move(tick));
}

void Timers::Advance(std::int64_t milliseconds) {
  const std::int64_t until = clock_.SteadyMilliseconds() + milliseconds;
  for (;;) {
    const auto next =
        std::min_element(entries_->begin(), entries_->end(),
                         [](const Entry* a, const Entry* b) { return a->due < b->due; });
    if (next == entries_->end() || (*next)->due > until) break;
    Entry& entry = **next;
    clock_.Advance(std::max<std::int64_t>(0, entry.due - clock_.SteadyMilliseconds()));
    while (entry.due <= clock_.SteadyMilliseconds()) entry.due += entry.interval;
    const std::function<void()> tick = entry.tick;  // the tick may destroy its timer
    tick();
  }
  clock_.Advance(std::max<std::int64_t>(0, until - clock_.SteadyMilliseconds()));
}

}  // namespace platform::memory
