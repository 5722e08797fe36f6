#include "toolkit/timer.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

Timer::Timer(Application& app, int interval_ms, std::function<void()> on_timer)
    : app_(app), interval_ms_(interval_ms), on_timer_(std::move(on_timer)) {}

void Timer::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  if (!enabled) {
    timer_.reset();
    return;
  }
  timer_ =
      app_.Platform().timers.Start(interval_ms_, [this] { app_.Guard([this] { on_timer_(); }); });
}

}  // namespace toolkit
