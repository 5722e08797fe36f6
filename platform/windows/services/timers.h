// Timers of the message loop.
#pragma once

#include <map>
#include <memory>

#include "platform/timers.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// The hidden window that gets the ticks of all timers (SetTimer).
class TimerWindow final : public NativeWindow {
 public:
  using Tick = std::function<void()>;

  explicit TimerWindow(const WindowClass& window_class);

  // Starts a timer and returns its number, or 0 when the system refuses. A number is never used
  // again, so that a tick that arrives after its timer has ended finds no timer.
  [[nodiscard]] UINT_PTR Start(int milliseconds, Tick tick);
  void Stop(UINT_PTR number);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  UINT_PTR last_number_ = 0;
  std::map<UINT_PTR, std::shared_ptr<const Tick>> ticks_;
};

class Timers final : public platform::Timers {
 public:
  // The object outlives every timer.
  Timers() = default;

  [[nodiscard]] std::unique_ptr<Timer> Start(int milliseconds, std::function<void()> tick) override;

 private:
  WindowClass window_class_{"TremoluxTimers"};
  TimerWindow window_{window_class_};
};

}  // namespace platform::windows
