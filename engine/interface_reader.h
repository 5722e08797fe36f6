// Reads the system's interface table, without the rows that would be counted twice.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/interface_table.h"

namespace engine {

// What happens to rows that are not known yet: the system is asked about them, or they are left out
// for now.
enum class NewRows { kAskAbout, kLeaveOut };

class InterfaceReader {
 public:
  explicit InterfaceReader(platform::InterfaceTable& source) : source_(source) {}

  // Refills `table`. When the system refuses, or the table grew between the two calls that it
  // takes, or nothing is in it, `table` keeps what it holds. A row of which the system does not say
  // whether it is a filter is left out and asked about at the next read that asks; after three
  // refusals it counts.
  void ReadInterfaceTable(std::vector<platform::InterfaceRow>& table,
                          NewRows new_rows = NewRows::kAskAbout);

 private:
  struct KnownRow {
    std::uint32_t index;
    std::string description;     // bytes of the code page
    std::optional<bool> filter;  // nothing: the system has not said yet
    int refusals = 0;
  };

  [[nodiscard]] std::vector<platform::InterfaceRow> ReadRows();
  [[nodiscard]] std::vector<platform::InterfaceRow> WithoutFilters(
      const std::vector<platform::InterfaceRow>& rows, NewRows new_rows);
  [[nodiscard]] KnownRow Recall(const platform::InterfaceRow& row, std::size_t position) const;
  void AskAbout(KnownRow& row);

  platform::InterfaceTable& source_;
  // What the system said about each row of the latest read, in its order, filters included.
  std::vector<KnownRow> known_;
};

}  // namespace engine
