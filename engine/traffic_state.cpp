#include "engine/traffic_state.h"

#include "settings/counter_text.h"

namespace engine {

using settings::WrappingAbs;
using settings::WrappingAdd;

void TrafficState::AddToRunTotals(const ScanAmounts& scan) {
  RunTotalDL = WrappingAbs(WrappingAdd(RunTotalDL, scan.ScanSumDL));
  RunTotalUL = WrappingAbs(WrappingAdd(RunTotalUL, scan.ScanSumUL));
}

void TrafficState::RestartSince(platform::DateTime now) {
  RunStartDate = platform::DateOf(now);
  RunStartTime = platform::TimeOf(now);
}

void TrafficState::RestartRun(platform::DateTime now) {
  RestartSince(now);
  RunTotalDL = 0;
  RunTotalUL = 0;
}

}  // namespace engine
