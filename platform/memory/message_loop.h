// A message loop whose messages are the steps of a test.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>

#include "platform/message_loop.h"

namespace platform::memory {

class MessageLoop final : public platform::MessageLoop {
 public:
  // Runs the steps that tests put in. When no step is left, it returns false, as if nobody would
  // ever do anything again, and counts `starved` up.
  bool RunUntil(const std::function<bool()>& done) override {
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
  // Runs one step, if there is one and `steps_when_pending` is set.
  bool ProcessPending() override {
    if (steps_when_pending && !steps_.empty()) RunStep();
    return !quit_;
  }
  // Does what ProcessPending does; no time passes.
  bool ProcessFor(int /*milliseconds*/) override { return ProcessPending(); }
  void Quit() override { quit_ = true; }

  // Adds a step that happens next while a loop runs.
  void Then(std::function<void()> step) { steps_.push_back(std::move(step)); }
  [[nodiscard]] std::size_t StepsLeft() const { return steps_.size(); }
  // Begins a new process, so that the loop may run again.
  void Restart() { quit_ = false; }
  [[nodiscard]] bool HasQuit() const { return quit_; }

  bool steps_when_pending = false;
  int starved = 0;

 private:
  void RunStep() {
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    step();
  }

  std::deque<std::function<void()>> steps_;
  bool quit_ = false;
};

}  // namespace platform::memory
