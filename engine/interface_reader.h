// Reads the system's interface table, without the rows that would be counted twice.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/interface_table.h"

namespace engine {

// What a read does with rows that are not known yet: it asks the system about them, or leaves them
// out for now.
enum class NewRows { kAskAbout, kLeaveOut };

class InterfaceReader {
 public:
  explicit InterfaceReader(platform::InterfaceTable& source) : source_(source) {}

  // Refills `table`. When the system refuses, or the table grew between the two calls that a read
  // takes, or the system's table is empty, `table` keeps what it holds. When the system does not
  // say whether a row is a filter, the row is left out, and the next read with kAskAbout asks
  // again; after three refusals the row counts.
  void ReadInterfaceTable(std::vector<platform::InterfaceRow>& table,
                          NewRows new_rows = NewRows::kAskAbout);

 private:
  struct KnownRow {
    std::uint32_t index;
    std::string description;     // as bytes of the system's code page
    std::optional<bool> filter;  // nullopt: the system has not said yet
    int refusals = 0;
  };

  [[nodiscard]] std::vector<platform::InterfaceRow> ReadRows();
  [[nodiscard]] std::vector<platform::InterfaceRow> WithoutFilters(
      const std::vector<platform::InterfaceRow>& rows, NewRows new_rows);
  [[nodiscard]] KnownRow Recall(const platform::InterfaceRow& row, std::size_t position) const;
  void AskAbout(KnownRow& row);

  platform::InterfaceTable& source_;
  // The system's answers about each row of the latest read, in its order, filters included.
  std::vector<KnownRow> known_;
};

}  // namespace engine
