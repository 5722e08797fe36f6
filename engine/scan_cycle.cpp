#include "engine/scan_cycle.h"

#include "platform/scoped_value.h"
#include "platform/wrapping.h"

namespace engine {
namespace {

// The graph's inputs have 32 bits; higher bits are cut off.
std::int32_t GraphInput(std::int64_t bytes) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(platform::WrappingAbs(bytes)));
}

}  // namespace

// This function is the order of a scan, from top to bottom. The amounts are local to it, so nothing
// has to be zeroed at the end, and a scan that runs inside the bandwidth step counts only its own
// bytes.
void ScanCycle::Run() {
  if (stage_ == Stage::kBusy) return;
  const platform::ScopedValue scope(stage_, Stage::kBusy);
  const platform::DateTime today = platform::DateOf(clock_.Now());

  ReinitialiseIfRowsChanged();
  const ScanAmounts scan = sampler_.SampleInterfaces(
      [&](std::string_view description) { return statistics_.Counts(description); },
      [&](const AdapterScan& adapter) { statistics_.PersistAdapter(adapter, today); });
  FeedGraph(scan);
  state_.AddToRunTotals(scan);
  statistics_.UpdateMachineMaxima(scan);
  steps_.ShowIcon(scan);
  steps_.ShowKeyboardLights(scan);
  steps_.CheckNotifications(scan);
  steps_.ShowNumericLine(scan);
  steps_.Tick(scan);
  statistics_.UpdateMachinePeriods(scan, today);
  CheckBandwidthAlert();
}

void ScanCycle::ReinitialiseIfRowsChanged() {
  if (!sampler_.RowCountChanged()) return;
  try {
    steps_.Reinitialise();
  } catch (...) {
    state_.AdapterHigh = kNotInitialised;  // the next scan tries again
    throw;
  }
}

void ScanCycle::FeedGraph(const ScanAmounts& scan) {
  steps_.FeedGraph(GraphInput(scan.ScanSumDL), GraphInput(scan.ScanSumUL));
}

void ScanCycle::CheckBandwidthAlert() {
  const platform::ScopedValue scope(stage_, Stage::kInBandwidthStep);
  steps_.CheckBandwidthAlert();
}

}  // namespace engine
