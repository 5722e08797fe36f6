#include "platform/memory/timers.h"

#include <utility>

namespace platform::memory {

struct Timers::Entry {
  std::int64_t due = 0;
  int interval = 0;
  std::function<void()> tick;
  bool stopped = false;  // the timer is destroyed, while its last tick may still be running
};

class Timers::Handle final : public Timer {
 public:
  explicit Handle(std::shared_ptr<Entry> entry) : entry_(std::move(entry)) {}
  ~Handle() override { entry_->stopped = true; }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

 private:
  std::shared_ptr<Entry> entry_;
};

Timers::Timers(Clock& clock) : clock_(clock) {}
Timers::~Timers() = default;

std::unique_ptr<Timer> Timers::Start(int milliseconds, std::function<void()> tick) {
  ++started;
  last_interval = milliseconds;
  std::erase_if(entries_, [](const std::weak_ptr<Entry>& entry) { return entry.expired(); });
  auto entry = std::make_shared<Entry>(
      Entry{clock_.SteadyMilliseconds() + milliseconds, milliseconds, std::move(tick)});
  entries_.push_back(entry);
  return std::make_unique<Handle>(std::move(entry));
}

std::shared_ptr<Timers::Entry> Timers::NextDue(std::int64_t until) const {
  std::shared_ptr<Entry> next;
  for (const std::weak_ptr<Entry>& weak : entries_) {
    const std::shared_ptr<Entry> entry = weak.lock();
    if (!entry || entry->stopped) continue;
    if (entry->due <= until && (!next || entry->due < next->due)) next = entry;
  }
  return next;
}

void Timers::Advance(std::int64_t milliseconds) {
  const std::int64_t until = clock_.SteadyMilliseconds() + milliseconds;
  while (const std::shared_ptr<Entry> entry = NextDue(until)) {
    if (entry->due > clock_.SteadyMilliseconds()) {
      clock_.Advance(entry->due - clock_.SteadyMilliseconds());
    }
    while (entry->due <= clock_.SteadyMilliseconds()) entry->due += entry->interval;
    const std::function<void()> tick = entry->tick;  // the tick may destroy its timer
    tick();
  }
  if (clock_.SteadyMilliseconds() < until) clock_.Advance(until - clock_.SteadyMilliseconds());
}

void Timers::Stall(std::int64_t milliseconds) { clock_.Advance(milliseconds); }

int Timers::Running() const {
  int running = 0;
  for (const std::weak_ptr<Entry>& entry : entries_) running += entry.expired() ? 0 : 1;
  return running;
}

}  // namespace platform::memory
