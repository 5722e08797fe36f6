// An interface table that tests script.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/interface_table.h"
#include "platform/memory/notebook.h"

namespace platform::memory {

// Returns a row of an Ethernet card whose counters stand at zero.
//   description  bytes in the system's code page, cut at 255
//   mac          the hardware address, of at most 8 bytes
[[nodiscard]] inline InterfaceRow MakeRow(
    std::string_view description,
    std::initializer_list<std::uint8_t> mac = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E},
    std::uint32_t mtu = 1500, std::uint32_t speed = 1000000000) {
  InterfaceRow row;
  row.dwType = 6;  // Ethernet
  row.dwMtu = mtu;
  row.dwSpeed = speed;
  std::ranges::copy(mac, row.bPhysAddr.begin());
  row.dwPhysAddrLen = static_cast<std::uint32_t>(mac.size());
  row.dwAdminStatus = 1;
  row.dwOperStatus = 5;  // operational
  // One byte always remains for the terminating NUL.
  const std::string_view kept = description.substr(0, row.bDescr.size() - 1);
  std::transform(kept.begin(), kept.end(), row.bDescr.begin(),
                 [](char c) { return static_cast<std::uint8_t>(c); });
  row.dwDescrLen = static_cast<std::uint32_t>(kept.size()) + 1;
  return row;
}

class InterfaceTable : public platform::InterfaceTable {
 public:
  explicit InterfaceTable(Notebook& notebook) : notebook_(notebook) {}

  std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override {
    constexpr std::uint32_t kGeneralFailure = 31;  // ERROR_GEN_FAILURE
    ++reads;
    if (notebook_.Fails()) return kGeneralFailure;
    if (const auto failure = failures_.find(reads); failure != failures_.end()) {
      return failure->second;
    }
    const std::size_t needed = kInterfaceTableHead + rows.size() * sizeof(InterfaceRow);
    size = static_cast<std::uint32_t>(needed);
    if (buffer.size() < needed) {
      if (after_size_read) std::exchange(after_size_read, nullptr)();
      return kInsufficientBuffer;
    }
    const auto count = static_cast<std::uint32_t>(rows.size());
    std::memcpy(buffer.data(), &count, sizeof count);
    std::ranges::copy(std::as_bytes(std::span(rows)), buffer.begin() + sizeof count);
    return 0;
  }
  std::optional<bool> IsFilter(std::uint32_t index) override {
    ++filter_questions;
    if (notebook_.Fails() || !Knows(index)) return std::nullopt;
    return filters.contains(index);
  }
  std::optional<LongOctets> Octets(std::uint32_t index) override {
    ++octet_questions;
    if (notebook_.Fails() || !Knows(index) || hidden.contains(index)) return std::nullopt;
    const InterfaceRow& row = *std::ranges::find(rows, index, &InterfaceRow::dwIndex);
    const LongOctets& wrapped = wrapped_[index];
    return LongOctets{wrapped.in + row.dwInOctets, wrapped.out + row.dwOutOctets};
  }

  // The present rows. A test may change them in any way. An empty table has a row count of zero.
  std::vector<InterfaceRow> rows;

  // Adds a row at the end. A row whose dwIndex is 0 gets the next index that was never used.
  InterfaceRow& AddRow(InterfaceRow row) {
    if (row.dwIndex == 0) row.dwIndex = last_index_ + 1;
    last_index_ = std::max(last_index_, row.dwIndex);
    return rows.emplace_back(row);
  }
  void RemoveRow(std::ptrdiff_t position) { rows.erase(rows.begin() + position); }
  // Adds bytes to the counters of a row, which wrap at 2^32.
  void AddTraffic(std::size_t position, std::uint32_t received, std::uint32_t sent) {
    constexpr std::uint64_t kWrap = std::uint64_t{1} << 32U;
    InterfaceRow& row = rows.at(position);
    row.dwInOctets += received;
    row.dwOutOctets += sent;
    if (row.dwInOctets < received) wrapped_[row.dwIndex].in += kWrap;
    if (row.dwOutOctets < sent) wrapped_[row.dwIndex].out += kWrap;
  }
  // Interfaces, by dwIndex: lightweight filters on others, and those whose octets the system does
  // not tell in 64 bits.
  std::set<std::uint32_t> filters;
  std::set<std::uint32_t> hidden;

  // Makes the n-th Read from now (1 is the next) return `code` and do nothing.
  void FailRead(int n, std::uint32_t code) { failures_[reads + n] = code; }
  // Runs once, between the next Read that reports a buffer that is too small and the Read
  // after it: the table may grow, shrink or become empty between asking for the size and reading.
  std::function<void()> after_size_read;

  // The numbers of calls so far: of Read, IsFilter and Octets.
  int reads = 0;
  int filter_questions = 0;
  int octet_questions = 0;

 private:
  [[nodiscard]] bool Knows(std::uint32_t index) const {
    return std::ranges::count(rows, index, &InterfaceRow::dwIndex) > 0;
  }

  Notebook& notebook_;
  std::map<std::uint32_t, LongOctets> wrapped_;  // what the counters of a row lost, by dwIndex
  std::map<int, std::uint32_t> failures_;        // by the value of `reads` at which they happen
  std::uint32_t last_index_ = 0;
};

}  // namespace platform::memory
