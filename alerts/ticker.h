// A short sound each time so many bytes have moved.
#pragma once

#include <cstdint>

#include "alerts/reactions.h"
#include "engine/traffic_state.h"
#include "settings/store.h"

namespace alerts {

class Ticker {
 public:
  // Both arguments outlive the ticker.
  Ticker(settings::Store& store, Reactions& reactions) : store_(store), reactions_(reactions) {}

  // Counts a scan, if bytes moved in both directions, and plays at most one sound. Bytes counted
  // beyond one tick are kept for the scans that follow.
  void Update(const engine::ScanAmounts& scan);

 private:
  settings::Store& store_;
  Reactions& reactions_;
  std::int64_t TickerByteCount = 0;  // since the last tick; kept while the ticker is off
};

}  // namespace alerts
