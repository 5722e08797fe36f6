// A timer that keeps its phase: n ticks last n periods, however long each tick takes.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/timers.h"

namespace toolkit {

class Application;

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
