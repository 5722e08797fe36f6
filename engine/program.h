// The program from its start to its end.
#pragma once

#include <functional>
#include <memory>

#include "engine/traffic_state.h"
#include "platform/platform.h"
#include "platform/single_instance.h"

namespace engine {

// The meter window, as far as the program entry needs it.
class MeterWindow {
 public:
  virtual ~MeterWindow() = default;
  [[nodiscard]] virtual TrafficState& Traffic() = 0;
};

// What `run` returns, the exit code; a second copy of the program returns 0 at once, without a
// window or a word, and leaves the first alone. The first thing of all, before the system is asked
// for any window.
int RunOnce(platform::SingleInstance& single_instance, const std::function<int()>& run);

// Runs the program until its message loop is quit and returns its exit code. Once a start, when the
// window has counted it, every option that is not stored yet is stored with its default.
//   make_window  makes the meter window, initialised and shown; what it throws passes out
int RunProgram(platform::Platform& platform,
               const std::function<std::unique_ptr<MeterWindow>()>& make_window);

}  // namespace engine
