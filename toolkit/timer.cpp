#include "toolkit/timer.h"

#include <algorithm>
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

namespace {

constexpr std::int64_t kShortestTimer = 10;  // ms, the shortest that the system offers

// The part of a period that lies at least between two ticks. A tick that comes so late that the
// next would follow at once also takes the place of the next one, which would have next to nothing
// to do.
constexpr std::int64_t kShortestGapPercent = 25;

}  // namespace

PhaseTimer::PhaseTimer(Application& app, int period_ms, std::function<void()> on_tick)
    : app_(app), period_ms_(period_ms), on_tick_(std::move(on_tick)) {}

void PhaseTimer::SetActive(bool active) {
  if (active == active_) return;
  active_ = active;
  timer_.reset();
  if (!active_) return;
  deadline_ = app_.Platform().clock.SteadyMilliseconds() + period_ms_;
  Arm();
}

// The timer is armed before the tick runs, so that ticks go on while a window that the tick shows
// is open.
void PhaseTimer::Arm() {
  const std::int64_t wait = deadline_ - app_.Platform().clock.SteadyMilliseconds();
  auto next = app_.Platform().timers.Start(static_cast<int>(std::max(wait, kShortestTimer)),
                                           [this] { Tick(); });
  // When the system refuses a new timer, the present one goes on: ticks out of phase are better
  // than none.
  if (next) timer_ = std::move(next);
}

void PhaseTimer::Tick() {
  const std::int64_t now = app_.Platform().clock.SteadyMilliseconds();
  // The system's clock and its timers differ by a few ms; a tick that much too early counts as on
  // time.
  deadline_ += period_ms_;
  // Missed ticks are not made up for.
  const std::int64_t earliest = now + period_ms_ * kShortestGapPercent / 100;
  while (deadline_ < earliest) deadline_ += period_ms_;
  Arm();
  app_.Guard([this] { on_tick_(); });
}

}  // namespace toolkit
