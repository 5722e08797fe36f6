// The entry point: makes the platform and the meter window and lets the program run.
#include <memory>

#include "display/unit_BrisantoMain.h"
#include "engine/program.h"
#include "platform/windows/entry.h"
#include "platform/windows/machine.h"
#include "toolkit/application.h"

int platform::windows::Main() {
  Machine machine;
  toolkit::Application app(machine.platform());
  return engine::RunProgram(machine.platform(),
                            [&app] { return std::make_unique<display::T_frmBrisanto>(app); });
}
