#include "engine/interface_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include "platform/interface_row.h"

namespace engine {

using platform::InterfaceRow;

void InterfaceReader::ReadInterfaceTable(std::vector<InterfaceRow>& table) {
  std::vector<InterfaceRow> rows = WithoutFilters(ReadRows());
  if (!rows.empty()) table = std::move(rows);
}

// Empty on any failure.
std::vector<InterfaceRow> InterfaceReader::ReadRows() {
  std::uint32_t size = 0;
  if (source_.Read({}, size) != platform::kInsufficientBuffer) return {};
  std::vector<std::byte> buffer(size);
  if (source_.Read(buffer, size) != 0) return {};
  if (buffer.size() < platform::kInterfaceTableHead) return {};

  std::uint32_t count = 0;
  std::memcpy(&count, buffer.data(), sizeof count);
  const std::size_t room = (buffer.size() - platform::kInterfaceTableHead) / sizeof(InterfaceRow);
  std::vector<InterfaceRow> rows(std::min<std::size_t>(count, room));
  if (!rows.empty()) {
    std::memcpy(rows.data(), buffer.data() + platform::kInterfaceTableHead,
                rows.size() * sizeof(InterfaceRow));
  }
  return rows;
}

// Windows lists the lightweight filters on a card as rows of their own, each repeating the octets
// of the card; with them every total would be several times too high.
std::vector<InterfaceRow> InterfaceReader::WithoutFilters(const std::vector<InterfaceRow>& rows) {
  std::vector<InterfaceRow> kept;
  if (rows.empty()) return kept;
  kept.reserve(rows.size());
  std::vector<KnownRow> known;
  known.reserve(rows.size());
  for (const InterfaceRow& row : rows) {
    known.push_back(Know(row, known.size()));
    if (!known.back().filter.value_or(false)) kept.push_back(row);
  }
  known_ = std::move(known);
  return kept;
}

// Asks the system only about a row that it has not answered for at the latest read, so that a
// steady scan costs no call beside the table's own. An index can be given to another interface
// later; the description tells.
InterfaceReader::KnownRow InterfaceReader::Know(const InterfaceRow& row,
                                                std::size_t position) const {
  std::string description = platform::DescriptionBytes(row);
  const auto is_this = [&](const KnownRow& known) {
    return known.filter && known.index == row.dwIndex && known.description == description;
  };
  if (position < known_.size() && is_this(known_[position])) return known_[position];
  const auto found = std::find_if(known_.begin(), known_.end(), is_this);
  if (found != known_.end()) return *found;
  return {row.dwIndex, std::move(description), source_.IsFilter(row.dwIndex)};
}

}  // namespace engine
