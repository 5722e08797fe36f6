#include "engine/interface_sampler.h"

#include <cstddef>

#include "engine/adapter.h"

namespace engine {
namespace {

using platform::InterfaceRow;

std::int32_t HighestIndex(const std::vector<InterfaceRow>& table) {
  return static_cast<std::int32_t>(table.size()) - 1;
}

// Takes the row's present counters as seen, so that they are not counted.
void TakeBase(const InterfaceRow& row, AdapterCounters& counters) {
  counters.LastInOctets = row.dwInOctets;
  counters.LastOutOctets = row.dwOutOctets;
}

AdapterCounters SeededFrom(const InterfaceRow& row) {
  AdapterCounters counters;
  TakeBase(row, counters);
  return counters;
}

// Returns whether a counter began anew: it shows less than before, and the same counter in 64 bits
// has not reached 2^32.
bool BeganAnew(std::uint32_t last, std::uint32_t now, std::uint64_t now_in_full) {
  return now < last && now_in_full >> 32U == 0;
}

// Updates one direction of one row. The differences are unsigned, so a counter that wrapped still
// gives the true small difference.
void Advance(std::uint32_t octets, std::uint32_t& last, std::uint32_t& delta, std::uint32_t& total,
             std::uint32_t& active_scans) {
  delta = octets - last;
  total += delta;
  if (delta != 0) ++active_scans;
  last = octets;
}

void Cap(std::int64_t cap, std::uint32_t& bytes) {
  if (bytes > cap) bytes = static_cast<std::uint32_t>(cap);
}

// The order matters for the figures: the maxima are taken from the full amounts and capped
// afterwards; totals and activity keep the uncapped amounts.
void UpdateCounters(const InterfaceRow& row, std::int64_t speed_cap, AdapterCounters& c) {
  Advance(row.dwInOctets, c.LastInOctets, c.DeltaIn, c.TotalIn, c.ActiveInScans);
  Advance(row.dwOutOctets, c.LastOutOctets, c.DeltaOut, c.TotalOut, c.ActiveOutScans);
  if (c.DeltaIn > c.MaxIn) c.MaxIn = c.DeltaIn;
  if (c.DeltaOut > c.MaxOut) c.MaxOut = c.DeltaOut;
  if (speed_cap <= 0) return;
  for (std::uint32_t* bytes : {&c.DeltaIn, &c.DeltaOut, &c.MaxIn, &c.MaxOut}) {
    Cap(speed_cap, *bytes);
  }
}

}  // namespace

std::vector<AdapterItem> InterfaceSampler::InitAdapters(const Record& record) {
  reader_.ReadInterfaceTable(state_.interface_table);
  const std::vector<InterfaceRow>& table = state_.interface_table;
  state_.AdapterHigh = kNotInitialised;
  state_.adapter_counters.clear();
  for (const InterfaceRow& row : table) state_.adapter_counters.push_back(SeededFrom(row));
  state_.mac_addresses.assign(table.size(), "");

  std::vector<AdapterItem> items;
  for (std::size_t row = 0; row < table.size(); ++row) {
    const std::string description = AdapterDescription(table[row], locale_);
    if (IsLoopback(description)) continue;
    const bool included = record(description, table[row]);
    state_.mac_addresses[row] = FormatMacAddress(table[row]);
    if (description.empty()) continue;
    items.push_back({description, static_cast<std::int32_t>(row), included});
  }
  // This is set last, so that the next scan repeats an initialisation that failed half-way.
  state_.AdapterHigh = HighestIndex(table);
  return items;
}

bool InterfaceSampler::RowCountChanged() {
  reader_.ReadInterfaceTable(state_.interface_table);
  return HighestIndex(state_.interface_table) != state_.AdapterHigh;
}

ScanAmounts InterfaceSampler::SampleInterfaces(const Counts& counts, const Persist& persist) {
  // A row that RowCountChanged has not seen is left out until the next scan.
  reader_.ReadInterfaceTable(state_.interface_table, NewRows::kLeaveOut);
  ScanAmounts scan;
  // An adapter came or went since the row count was looked at. Rows and counters may belong to
  // different adapters now; the next scan seeds them anew, and this one measures nothing.
  if (!CountersFitTable()) return scan;

  // The work of one loop is done in two: storing may fail in the middle, and the later rows must
  // not keep the bytes of this scan for the next.
  const std::size_t rows = state_.interface_table.size();
  for (std::size_t position = 0; position < rows; ++position) {
    const InterfaceRow& row = state_.interface_table[position];
    AdapterCounters& counters = state_.adapter_counters[position];
    if (WasSetBack(row, counters)) TakeBase(row, counters);
    UpdateCounters(row, state_.SpeedCap, counters);
  }
  for (std::size_t row = 0; row < rows; ++row) CountRow(row, counts, persist, scan);
  return scan;
}

// An adapter that was started anew, or another one in its row, must not count as traffic of almost
// 4 GiB. The system is asked only about a row whose octets fell; when it cannot say, the octets
// count as wrapped.
bool InterfaceSampler::WasSetBack(const InterfaceRow& row, const AdapterCounters& counters) {
  if (row.dwInOctets >= counters.LastInOctets && row.dwOutOctets >= counters.LastOutOctets) {
    return false;
  }
  const auto octets = interface_table_.Octets(row.dwIndex);
  return octets && (BeganAnew(counters.LastInOctets, row.dwInOctets, octets->in) ||
                    BeganAnew(counters.LastOutOctets, row.dwOutOctets, octets->out));
}

void InterfaceSampler::CountRow(std::size_t row, const Counts& counts, const Persist& persist,
                                ScanAmounts& scan) {
  const AdapterCounters& counters = state_.adapter_counters[row];
  const std::string description = AdapterDescription(state_.interface_table[row], locale_);
  if (IsLoopback(description)) return;
  if (counts(description)) {
    scan.ScanSumDL += counters.DeltaIn;
    scan.ScanSumUL += counters.DeltaOut;
    scan.ScanMaxDL += counters.MaxIn;
    scan.ScanMaxUL += counters.MaxOut;
  }
  // The sums so far decide, not the row's own bytes: after an active row an idle or excluded one is
  // persisted too, and a scan with bytes in only one direction persists nothing.
  if (scan.ScanSumDL == 0 || scan.ScanSumUL == 0) return;
  persist({description, state_.interface_table[row], counters});
}

void InterfaceSampler::TakePresentCounters() {
  reader_.ReadInterfaceTable(state_.interface_table);
  if (!CountersFitTable()) return;
  for (std::size_t row = 0; row < state_.interface_table.size(); ++row) {
    TakeBase(state_.interface_table[row], state_.adapter_counters[row]);
  }
}

std::vector<std::string> InterfaceSampler::Descriptions() const {
  std::vector<std::string> descriptions;
  for (const InterfaceRow& row : state_.interface_table) {
    descriptions.push_back(AdapterDescription(row, locale_));
  }
  return descriptions;
}

bool InterfaceSampler::CountersFitTable() const {
  return state_.adapter_counters.size() == state_.interface_table.size();
}

}  // namespace engine
