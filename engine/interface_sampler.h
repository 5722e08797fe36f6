// Turns the system's octet counters into the bytes of each scan.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/interface_reader.h"
#include "engine/traffic_state.h"
#include "platform/interface_table.h"
#include "platform/locale.h"

namespace engine {

// An adapter as the two adapter menus show it.
struct AdapterItem {
  std::string description;  // the caption
  std::int32_t row = 0;     // the Tag
  bool included = true;     // the check mark of "Connection Sources"
};

class InterfaceSampler {
 public:
  // Stores what a row says about its adapter; returns whether the adapter's menu item is ticked.
  using Record = std::function<bool(std::string_view description, const platform::InterfaceRow&)>;
  // Returns whether the user wants the adapter counted.
  using Counts = std::function<bool(std::string_view description)>;
  // Stores the statistics of an adapter.
  using Persist = std::function<void(const AdapterScan&)>;

  // All arguments outlive the sampler.
  InterfaceSampler(platform::InterfaceTable& interface_table, platform::Locale& locale,
                   TrafficState& state)
      : interface_table_(interface_table),
        reader_(interface_table),
        locale_(locale),
        state_(state) {}

  // Reads the table, seeds the counters of every row from it, so that the next scan counts from
  // here, and hands each adapter to `record`. Returns the adapters that the menus list, in row
  // order. Throws what `record` throws; the table then counts as not initialised.
  [[nodiscard]] std::vector<AdapterItem> InitAdapters(const Record& record);

  // Reads the table and returns whether its row count differs from that at the last InitAdapters.
  [[nodiscard]] bool RowCountChanged();

  // Reads the table and measures one scan; asks `counts` about each adapter and hands those that
  // are to be persisted to `persist`, in row order, before the next adapter is asked about. Throws
  // what the two throw. The counters of all rows are up to date then, so the bytes of this scan are
  // not counted by a later one.
  [[nodiscard]] ScanAmounts SampleInterfaces(const Counts& counts, const Persist& persist);

  // Takes the present counters as those of the previous scan. This is for the return from sleep,
  // when drivers may have started their counters anew, so that a difference is no traffic.
  void TakePresentCounters();

  // Returns the description of each row of the table as last read, in row order.
  [[nodiscard]] std::vector<std::string> Descriptions() const;

 private:
  [[nodiscard]] bool CountersFitTable() const;
  [[nodiscard]] bool WasSetBack(const platform::InterfaceRow& row, const AdapterCounters& counters);
  void CountRow(std::size_t row, const Counts& counts, const Persist& persist, ScanAmounts& scan);

  platform::InterfaceTable& interface_table_;
  InterfaceReader reader_;
  platform::Locale& locale_;
  TrafficState& state_;
};

}  // namespace engine
