// Timers of the message loop.
#pragma once

#include "platform/timers.h"
#include "platform/windows/windows/callback_window.h"

namespace platform::windows {

class Timers final : public platform::Timers {
 public:
  // The object outlives every timer.
  Timers() = default;

  [[nodiscard]] std::unique_ptr<Timer> Start(int milliseconds, std::function<void()> tick) override;

 private:
  WindowClass window_class_{"TremoluxTimers"};
  CallbackWindow window_{window_class_, WM_TIMER};
  // A number is never used again, so that a tick that arrives after its timer has ended finds no
  // timer.
  UINT_PTR last_number_ = 0;
};

}  // namespace platform::windows
