// The program from its start to its end.
#pragma once

#include <functional>
#include <memory>

#include "engine/traffic_state.h"
#include "platform/platform.h"

namespace engine {

// The meter window, as far as the program entry needs it.
class MeterWindow {
 public:
  virtual ~MeterWindow() = default;
  [[nodiscard]] virtual TrafficState& Traffic() = 0;
};

// Runs the program until its message loop is quit and returns its exit code. A second copy returns
// 0 at once, without a window or a word, and leaves the first alone. Once a start, when the window
// has counted it, every option that is not stored yet is stored with its default.
//   make_window  makes the meter window, initialised and shown; what it throws passes out
int RunProgram(platform::Platform& platform,
               const std::function<std::unique_ptr<MeterWindow>()>& make_window);

}  // namespace engine
