#include "platform/memory/message_loop.h"

#include <utility>

namespace platform::memory {

bool MessageLoop::RunUntil(const std::function<bool()>& done) {
  ++depth_;
  bool ended_by_done = false;
  while (!quit_) {
    if (done()) {
      ended_by_done = true;
      break;
    }
    if (steps_.empty()) {
      ++starved;
      break;
    }
    RunStep();
  }
  --depth_;
  return ended_by_done;
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
