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
enum class DescriptionLength { kCountsNul, kWithoutNul };

// A row of an Ethernet card whose counters stand at zero.
//   description  bytes in the code page, cut at 255
//   mac          its first 8 bytes are taken; may be empty
[[nodiscard]] InterfaceRow MakeRow(std::string_view description,
                                   std::initializer_list<std::uint8_t> mac = {0x00, 0x1A, 0x2B,
                                                                              0x3C, 0x4D, 0x5E},
                                   std::uint32_t mtu = 1500, std::uint32_t speed = 1000000000,
                                   DescriptionLength length = DescriptionLength::kCountsNul);

class InterfaceTable : public platform::InterfaceTable {
 public:
  explicit InterfaceTable(Notebook& notebook) : notebook_(notebook) {}

  [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override;
  [[nodiscard]] std::optional<bool> IsFilter(std::uint32_t index) override;
  [[nodiscard]] std::optional<LongOctets> Octets(std::uint32_t index) override;

  // The rows as they stand now. A test may change them in any way; without any row the table has a
  // row count of zero.
  std::vector<InterfaceRow> rows;

  // Adds a row at the end. One whose dwIndex is 0 gets the next that was never used.
  InterfaceRow& AddRow(InterfaceRow row);
  void RemoveRow(std::size_t position);
  // Moves the counters of a row on, past 2^32 to the small numbers.
  void AddTraffic(std::size_t position, std::uint32_t received, std::uint32_t sent);
  // Marks an interface as a lightweight filter on another one.
  void MarkFilter(std::uint32_t index) { filters_.insert(index); }
  // From now on the system does not tell this interface's octets in 64 bits.
  void HideOctets(std::uint32_t index) { hidden_.insert(index); }

  // The n-th Read from now (1 is the next) answers with `code` and does nothing.
  void FailRead(int n, std::uint32_t code);
  // Runs once, after the next Read that answers that its buffer is too small, and before the one
  // that follows: the table may grow, shrink or become empty between asking and reading.
  void AfterNextSizeRead(std::function<void()> change) { after_size_read_ = std::move(change); }

  // Reads so far, and questions about filters and about octets.
  int reads = 0;
  int filter_questions = 0;
  int octet_questions = 0;

 private:
  struct Failure {
    int read;  // value of `reads` at which it strikes
    std::uint32_t code;
  };

  [[nodiscard]] const InterfaceRow* RowOf(std::uint32_t index) const;

  Notebook& notebook_;
  std::map<std::uint32_t, LongOctets> wrapped_;  // what the counters of a row lost, by dwIndex
  std::set<std::uint32_t> filters_;
  std::set<std::uint32_t> hidden_;
  std::vector<Failure> failures_;
  std::function<void()> after_size_read_;
  std::uint32_t last_index_ = 0;
};

}  // namespace platform::memory
