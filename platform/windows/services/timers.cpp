#include "platform/windows/services/timers.h"

#include <utility>

namespace platform::windows {
namespace {

class RunningTimer final : public Timer {
 public:
  RunningTimer(CallbackWindow& window, UINT_PTR number) : window_(window), number_(number) {}
  ~RunningTimer() override {
    ::KillTimer(window_.hwnd(), number_);
    window_.Remove(number_);
  }
  RunningTimer(const RunningTimer&) = delete;
  RunningTimer& operator=(const RunningTimer&) = delete;

 private:
  CallbackWindow& window_;
  UINT_PTR number_;
};

}  // namespace

std::unique_ptr<Timer> Timers::Start(int milliseconds, std::function<void()> tick) {
  const UINT_PTR number = last_number_ + 1;
  if (::SetTimer(window_.hwnd(), number, static_cast<UINT>(milliseconds), nullptr) == 0) {
    return nullptr;
  }
  last_number_ = number;
  window_.Add(number, std::move(tick));
  return std::make_unique<RunningTimer>(window_, number);
}

}  // namespace platform::windows
