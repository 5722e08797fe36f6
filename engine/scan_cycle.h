// The program's heartbeat: what one scan does, in its order.
#pragma once

#include <cstdint>

#include "engine/interface_sampler.h"
#include "engine/statistics.h"
#include "engine/traffic_state.h"
#include "platform/clock.h"

namespace engine {

// The steps of a scan that belong to the floors above; the meter window implements them. Each step
// may throw, which ends the scan.
class ScanSteps {
 public:
  virtual ~ScanSteps() = default;

  // Runs when the number of adapters changed: empties both adapter menus and runs the window's
  // whole initialisation again.
  virtual void Reinitialise() = 0;
  // Hands the graph its bytes of this scan (`TestRead`, `TestWrite`).
  virtual void FeedGraph(std::int32_t TestRead, std::int32_t TestWrite) = 0;
  virtual void ShowIcon(const ScanAmounts& scan) = 0;
  virtual void ShowKeyboardLights(const ScanAmounts& scan) = 0;
  // Advances the counts of the traffic notifications.
  virtual void CheckNotifications(const ScanAmounts& scan) = 0;
  // Updates the numeric line, the tray icon's hint and the posted titles.
  virtual void ShowNumericLine(const ScanAmounts& scan) = 0;
  // Counts the scan for the ticker, which may play its sound.
  virtual void Tick(const ScanAmounts& scan) = 0;
  // May show a modal window, during which further scans run.
  virtual void CheckBandwidthAlert() = 0;
};

class ScanCycle {
 public:
  // All arguments outlive the cycle.
  ScanCycle(platform::Clock& clock, InterfaceSampler& sampler, Statistics& statistics,
            TrafficState& state, ScanSteps& steps)
      : clock_(clock), sampler_(sampler), statistics_(statistics), state_(state), steps_(steps) {}
  ScanCycle(const ScanCycle&) = delete;
  ScanCycle& operator=(const ScanCycle&) = delete;

  // Does one scan; it is called once a second. An exception of a step passes out to the caller; the
  // later steps are left out, and the next scan starts clean. A call while a scan is under way does
  // nothing, except inside that scan's bandwidth step.
  void Run();

 private:
  // How far the scan that is under way has come.
  enum class Stage { kIdle, kBusy, kInBandwidthStep };

  void ReinitialiseIfRowsChanged();
  void FeedGraph(const ScanAmounts& scan);
  void CheckBandwidthAlert();

  platform::Clock& clock_;
  InterfaceSampler& sampler_;
  Statistics& statistics_;
  TrafficState& state_;
  ScanSteps& steps_;
  Stage stage_ = Stage::kIdle;
};

}  // namespace engine
