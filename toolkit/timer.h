// Timers as properties of a form.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/timers.h"

namespace toolkit {

class Application;

// The timer is off when it is made. It ends with its owner, so it never calls into a form that is
// gone.
class Timer {
 public:
  Timer(Application& app, int interval_ms, std::function<void()> on_timer);

  [[nodiscard]] bool Enabled() const { return timer_ != nullptr; }
  // A timer that is already running is not started anew.
  void SetEnabled(bool enabled);

 private:
  Application& app_;
  int interval_ms_;
  std::function<void()> on_timer_;
  std::unique_ptr<platform::Timer> timer_;
};

// A timer that keeps its phase: n ticks last n periods, however long each tick takes.
class PhaseTimer {
 public:
  PhaseTimer(Application& app, int period_ms, std::function<void()> on_tick);

  [[nodiscard]] bool Active() const { return active_; }
  void SetActive(bool active);

 private:
  void Arm();
  void Tick();

  Application& app_;
  int period_ms_;
  std::function<void()> on_tick_;
  bool active_ = false;
  std::int64_t deadline_ = 0;  // of the next tick, on the steady clock
  std::unique_ptr<platform::Timer> timer_;
};

}  // namespace toolkit
