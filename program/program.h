// The program from its start to its end.
#pragma once

#include <functional>

#include "display/unit_BrisantoMain.h"
#include "platform/platform.h"
#include "platform/single_instance.h"
#include "toolkit/application.h"

namespace program {

// Runs `run` and returns its exit code. A second copy of the program returns 0 at once, without a
// window or a message, and leaves the first copy alone. This is called first of all, before the
// system is asked for any window.
int RunOnce(platform::SingleInstance& single_instance, const std::function<int()>& run);

// The meter window with its preferences. At each start, after the window has counted it, every
// option that is not stored yet is stored with its default.
class Program {
 public:
  // Makes, initialises and shows the window; exceptions pass out. `platform` outlives the program.
  explicit Program(platform::Platform& platform);

  // Runs until the message loop is quit and returns the exit code.
  int Run();

  [[nodiscard]] toolkit::Application& App() { return app_; }
  [[nodiscard]] display::T_frmBrisanto& Meter() { return meter_; }

 private:
  toolkit::Application app_;
  display::T_frmBrisanto meter_;
};

}  // namespace program
