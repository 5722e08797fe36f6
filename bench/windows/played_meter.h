// The program's own meter window on the real system, which scans when it is told to.
#pragma once

#include <optional>
#include <vector>

#include "bench/windows/played_machine.h"
#include "display/unit_BrisantoMain.h"
#include "toolkit/application.h"

namespace bench {

class PlayedMeter {
 public:
  explicit PlayedMeter(int adapters) : machine_(adapters), app_(machine_.platform()) {
    window_.emplace(app_);
    Paint();
  }

  void Scan() {
    machine_.table.Move();
    IdleScan();
  }
  void IdleScan() { machine_.timers.Tick(); }
  // What a scan has made old on the screen.
  void Paint() { machine_.platform().message_loop.ProcessPending(); }

  [[nodiscard]] toolkit::Application& App() { return app_; }
  [[nodiscard]] display::RunningMeter Parts() { return window_->Parts(); }

  // Until nothing happens any more for the first time.
  void WarmUp() {
    constexpr int kScans = 30;
    for (int scan = 0; scan < kScans; ++scan) {
      Scan();
      Paint();
    }
  }

  // The registry's work of a scan.
  [[nodiscard]] std::vector<RegistryOperation> Record(void (PlayedMeter::*scan)()) {
    machine_.registry.Record();
    (this->*scan)();
    return machine_.registry.Recorded();
  }

 private:
  PlayedMachine machine_;
  toolkit::Application app_;
  std::optional<display::T_frmBrisanto> window_;
};

}  // namespace bench
