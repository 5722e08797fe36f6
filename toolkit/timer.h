// A timer as a property of a form.
#pragma once

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

}  // namespace toolkit
