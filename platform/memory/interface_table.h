// An interface table that tests script.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string_view>
#include <vector>

#include "platform/interface_table.h"
#include "platform/memory/notebook.h"

namespace platform::memory {

// Whether `dwDescrLen` counts the terminating NUL: it does on Windows and not under Wine.
// Returns a row of an Ethernet card whose counters stand at zero.
//   description  bytes in the system's code page, cut at 255
//   mac          the hardware address, of which the first 8 bytes are taken; may be empty
[[nodiscard]] InterfaceRow MakeRow(std::string_view description,
                                   std::initializer_list<std::uint8_t> mac = {0x00, 0x1A, 0x2B,
                                                                              0x3C, 0x4D, 0x5E},
                                   std::uint32_t mtu = 1500, std::uint32_t speed = 1000000000);

class InterfaceTable : public platform::InterfaceTable {
 public:
  explicit InterfaceTable(Notebook& notebook) : notebook_(notebook) {}

  [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override;
  [[nodiscard]] std::optional<bool> IsFilter(std::uint32_t index) override;
  [[nodiscard]] std::optional<LongOctets> Octets(std::uint32_t index) override;

  // The present rows. A test may change them in any way. An empty table has a row count of zero.
  std::vector<InterfaceRow> rows;

  // Adds a row at the end. A row whose dwIndex is 0 gets the next index that was never used.
  InterfaceRow& AddRow(InterfaceRow row);
  void RemoveRow(std::size_t position);
  // Adds bytes to the counters of a row, which wrap at 2^32.
  void AddTraffic(std::size_t position, std::uint32_t received, std::uint32_t sent);
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
  [[nodiscard]] const InterfaceRow* RowOf(std::uint32_t index) const;

  Notebook& notebook_;
  std::map<std::uint32_t, LongOctets> wrapped_;  // what the counters of a row lost, by dwIndex
  std::map<int, std::uint32_t> failures_;        // by the value of `reads` at which they happen
  std::uint32_t last_index_ = 0;
};

}  // namespace platform::memory
