#include "engine/traffic_state.h"

#include "platform/wrapping.h"

namespace engine {

using platform::WrappingAbs;
using platform::WrappingAdd;

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
