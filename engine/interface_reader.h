// Reads the system's interface table, without the rows that would be counted twice.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/interface_table.h"

namespace engine {

class InterfaceReader {
 public:
  explicit InterfaceReader(platform::InterfaceTable& source) : source_(source) {}

  // Refills `table`. When the system refuses, or the table grew between the two calls that it
  // takes, or nothing is in it, `table` keeps what it holds.
  void ReadInterfaceTable(std::vector<platform::InterfaceRow>& table);

 private:
  struct KnownRow {
    std::uint32_t index;
    std::string description;     // bytes of the code page
    std::optional<bool> filter;  // nothing: the system could not say
  };

  [[nodiscard]] std::vector<platform::InterfaceRow> ReadRows();
  [[nodiscard]] std::vector<platform::InterfaceRow> WithoutFilters(
      const std::vector<platform::InterfaceRow>& rows);
  [[nodiscard]] KnownRow Know(const platform::InterfaceRow& row, std::size_t position) const;

  platform::InterfaceTable& source_;
  // What the system said about each row of the latest read, in its order, filters included.
  std::vector<KnownRow> known_;
};

}  // namespace engine
