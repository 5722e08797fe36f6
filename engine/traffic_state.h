// The traffic figures that outlive a scan, and those that one scan hands on.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/date_time.h"
#include "platform/interface_table.h"

namespace engine {

// What one scan measured: bytes over the adapters that count. It is a value of that scan, handed
// down and never stored, so that a scan which fails, or one that runs inside another, leaves
// nothing behind for the next.
struct ScanAmounts {
  std::int64_t ScanSumDL = 0;
  std::int64_t ScanSumUL = 0;
  // The sums of each adapter's largest scan so far; these need not be the same scan.
  std::int64_t ScanMaxDL = 0;
  std::int64_t ScanMaxUL = 0;
};

// The counters of one row of the interface table. All wrap at 2^32.
struct AdapterCounters {
  std::uint32_t ActiveInScans = 0;  // scans in which something was received
  std::uint32_t ActiveOutScans = 0;
  std::uint32_t LastInOctets = 0;  // the system's counters at the previous scan
  std::uint32_t LastOutOctets = 0;
  std::uint32_t TotalIn = 0;  // bytes since the record was made, uncapped
  std::uint32_t TotalOut = 0;
  std::uint32_t DeltaIn = 0;  // bytes of the latest scan, capped
  std::uint32_t DeltaOut = 0;
  std::uint32_t MaxIn = 0;  // largest scan, capped
  std::uint32_t MaxOut = 0;
};

// What one scan hands on about one adapter.
struct AdapterScan {
  std::string_view description;
  const platform::InterfaceRow& row;
  const AdapterCounters& counters;
};

// The highest row index while nothing is initialised. No table has it (an empty table has -1), so a
// table of any size differs from it.
inline constexpr std::int32_t kNotInitialised = -2;

// The traffic figures of the run. The meter window owns them and lends them to the engine and to
// the statistics windows.
struct TrafficState {
  std::vector<platform::InterfaceRow> interface_table;
  std::vector<AdapterCounters> adapter_counters;  // by row
  std::vector<std::string> mac_addresses;         // by row; empty for the loopback

  // Highest row index of the table when the counters were seeded; -1 for a table without rows.
  std::int32_t AdapterHigh = kNotInitialised;

  // Bytes that one scan may count for an adapter and direction; 0 for no limit.
  std::int64_t SpeedCap = 0;

  // The bytes since the start of the run or the last reset of the statistics, and the moment of
  // that start or reset.
  std::int64_t RunTotalDL = 0;
  std::int64_t RunTotalUL = 0;
  platform::DateTime RunStartDate = 0;  // midnight
  platform::DateTime RunStartTime = 0;  // time of day

  void AddToRunTotals(const ScanAmounts& scan);
  // Sets the start to `now`; the totals stay.
  void RestartSince(platform::DateTime now);
  // Begins the run anew: sets the totals to zero and the start to `now`.
  void RestartRun(platform::DateTime now);
};

}  // namespace engine
