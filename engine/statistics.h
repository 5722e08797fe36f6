// The statistics that outlive a run: read, changed and written back within each scan.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/traffic_state.h"
#include "platform/date_time.h"
#include "settings/store.h"

namespace engine {

// All functions throw what the store throws: settings::ConversionError for a stored counter that is
// no number, std::runtime_error for a refused write. What was written before stays.
class Statistics {
 public:
  explicit Statistics(settings::Store& store) : store_(store) {}

  // Counts the start of the program. The very first start also sets the period markers and includes
  // every adapter.
  //   descriptions  of all rows of the interface table, the loopback's too
  //   now           local date and time
  void InitStatistics(std::span<const std::string> descriptions, platform::DateTime now);

  // Stores what a row says about its adapter, at an initialisation. Returns whether the menu shows
  // the adapter as one that counts, and false for an adapter without a description, which has no
  // menu item.
  bool RecordAdapter(std::string_view description, const platform::InterfaceRow& row);
  // Returns whether the user wants the adapter counted.
  [[nodiscard]] bool Counts(std::string_view description);
  // Stores the data of one adapter, in a scan that persists it, and updates its statistics.
  //   today  midnight of the local date
  void PersistAdapter(const AdapterScan& adapter, platform::DateTime today);

  // Updates the statistics of one adapter, in a scan that persists it. It compares today with the
  // machine's period markers and does not write them, so that all adapters of the scan roll over
  // together. An adapter that is not persisted in that scan misses the reset and goes on adding to
  // the old values.
  //   today  midnight of the local date
  void UpdateAdapterStatistics(std::string_view description, const AdapterCounters& counters,
                               platform::DateTime today);

  // The machine's part of a scan is two steps, since others run between them.
  void UpdateMachineMaxima(const ScanAmounts& scan);
  void UpdateMachinePeriods(const ScanAmounts& scan, platform::DateTime today);

 private:
  settings::Store& store_;
};

}  // namespace engine
