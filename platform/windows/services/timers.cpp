#include "platform/windows/services/timers.h"

#include <utility>

namespace platform::windows {
namespace {

class RunningTimer final : public Timer {
 public:
  RunningTimer(TimerWindow& window, UINT_PTR number) : window_(window), number_(number) {}
  ~RunningTimer() override { window_.Stop(number_); }
  RunningTimer(const RunningTimer&) = delete;
  RunningTimer& operator=(const RunningTimer&) = delete;

 private:
  TimerWindow& window_;
  UINT_PTR number_;
};

}  // namespace

TimerWindow::TimerWindow(const WindowClass& window_class) {
  Create(window_class, {}, HWND_MESSAGE, {});
}

UINT_PTR TimerWindow::Start(int milliseconds, Tick tick) {
  const UINT_PTR number = last_number_ + 1;
  if (::SetTimer(hwnd(), number, static_cast<UINT>(milliseconds), nullptr) == 0) return 0;
  last_number_ = number;
  ticks_.emplace(number, std::make_shared<const Tick>(std::move(tick)));
  return number;
}

void TimerWindow::Stop(UINT_PTR number) {
  ::KillTimer(hwnd(), number);
  ticks_.erase(number);
}

std::optional<LRESULT> TimerWindow::Handle(const Message& message) {
  if (message.id != WM_TIMER) return std::nullopt;
  const auto found = ticks_.find(message.w);
  if (found == ticks_.end()) return 0;
  const std::shared_ptr<const Tick> tick = found->second;  // the tick may end its own timer
  (*tick)();
  return 0;
}

std::unique_ptr<Timer> Timers::Start(int milliseconds, std::function<void()> tick) {
  const UINT_PTR number = window_.Start(milliseconds, std::move(tick));
  if (number == 0) return nullptr;
  return std::make_unique<RunningTimer>(window_, number);
}

}  // namespace platform::windows
