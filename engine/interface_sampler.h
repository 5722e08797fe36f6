// Turns the system's octet counters into the bytes of each scan.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "engine/interface_reader.h"
#include "engine/traffic_state.h"
#include "platform/interface_table.h"
#include "platform/locale.h"
#include "settings/store.h"

namespace engine {

// An adapter as the two adapter menus show it.
struct AdapterItem {
  std::string description;  // the caption
  std::int32_t row = 0;     // the Tag
  bool included = true;     // the check mark of "Connection Sources"
};

class InterfaceSampler {
 public:
  using Persist = std::function<void(const AdapterScan&)>;

  // All arguments outlive the sampler.
  InterfaceSampler(platform::InterfaceTable& interface_table, platform::Locale& locale,
                   settings::Store& store, TrafficState& state)
      : interface_table_(interface_table),
        reader_(interface_table),
        locale_(locale),
        store_(store),
        state_(state) {}

  // Reads the table, seeds the counters of every row from it, so that the next scan counts from
  // here, and stores the adapter data. Returns the adapters that the menus list, in row order.
  // Throws what the store throws; the table then counts as not initialised.
  [[nodiscard]] std::vector<AdapterItem> InitAdapters();

  // Reads the table and returns whether its row count differs from that at the last InitAdapters.
  [[nodiscard]] bool RowCountChanged();

  // Reads the table and measures one scan; hands each adapter that is to be persisted to `persist`,
  // in row order, before the include flag of the next is read.
  // Throws what `persist` throws. The counters of all rows are up to date then, so the bytes of
  // this scan are not counted by a later one.
  [[nodiscard]] ScanAmounts SampleInterfaces(const Persist& persist);

  // Takes the present counters as those of the previous scan. This is for the return from sleep,
  // when drivers may have started their counters anew, so that a difference is no traffic.
  void TakePresentCounters();

  // Returns the description of each row of the table as last read, in row order.
  [[nodiscard]] std::vector<std::string> Descriptions() const;

 private:
  [[nodiscard]] bool CountersFitTable() const;
  [[nodiscard]] bool WasSetBack(const platform::InterfaceRow& row, const AdapterCounters& counters);
  void CountRow(std::size_t row, const Persist& persist, ScanAmounts& scan);

  platform::InterfaceTable& interface_table_;
  InterfaceReader reader_;
  platform::Locale& locale_;
  settings::Store& store_;
  TrafficState& state_;
};

}  // namespace engine
