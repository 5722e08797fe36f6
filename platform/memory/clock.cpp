#include "platform/memory/clock.h"

#include <cmath>

namespace platform::memory {
namespace {

constexpr std::int64_t kMillisecondsPerDay = 86400000;

}  // namespace

DateTime Clock::Now() {
  if (since_base_ == 0) return base_;
  // The sum is in whole milliseconds, so that a moment reached by Advance is the same double as an
  // encoded one.
  const auto in_day = std::llround(TimeOf(base_) * static_cast<double>(kMillisecondsPerDay));
  const std::int64_t total = in_day + since_base_;
  const std::int64_t days = total / kMillisecondsPerDay - (total % kMillisecondsPerDay < 0 ? 1 : 0);
  const std::int64_t rest = total - days * kMillisecondsPerDay;
  const DateTime date = DateOf(base_) + static_cast<double>(days);
  const double fraction = static_cast<double>(rest) / static_cast<double>(kMillisecondsPerDay);
  return date < 0 ? date - fraction : date + fraction;
}

void Clock::SetNow(DateTime now) {
  base_ = now;
  since_base_ = 0;
}

void Clock::Advance(std::int64_t milliseconds) {
  since_base_ += milliseconds;
  steady_ += milliseconds;
}

}  // namespace platform::memory
