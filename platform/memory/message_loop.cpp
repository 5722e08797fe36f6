#include "platform/memory/message_loop.h"

#include <utility>

namespace platform::memory {

bool MessageLoop::RunUntil(const std::function<bool()>& done) {
  while (!quit_) {
    if (done()) return true;
    if (steps_.empty()) {
      ++starved;
      return false;
    }
    RunStep();
  }
  return false;
}

bool MessageLoop::ProcessPending() {
  if (steps_when_pending && !steps_.empty()) RunStep();
  return !quit_;
}

void MessageLoop::RunStep() {
  const std::function<void()> step = std::move(steps_.front());
  steps_.pop_front();
  step();
}

}  // namespace platform::memory
