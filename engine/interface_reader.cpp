#include "engine/interface_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

namespace engine {

using platform::InterfaceRow;

namespace {

constexpr int kMostRefusals = 3;

}  // namespace

void InterfaceReader::ReadInterfaceTable(std::vector<InterfaceRow>& table, NewRows new_rows) {
  std::vector<InterfaceRow> rows = WithoutFilters(ReadRows(), new_rows);
  if (!rows.empty()) table = std::move(rows);
}

// Returns no rows on any failure.
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
std::vector<InterfaceRow> InterfaceReader::WithoutFilters(const std::vector<InterfaceRow>& rows,
                                                          NewRows new_rows) {
  std::vector<InterfaceRow> kept;
  if (rows.empty()) return kept;
  kept.reserve(rows.size());
  std::vector<KnownRow> known;
  known.reserve(rows.size());
  for (const InterfaceRow& row : rows) {
    known.push_back(Recall(row, known.size()));
    if (!known.back().filter && new_rows == NewRows::kAskAbout) AskAbout(known.back());
    if (known.back().filter == false) kept.push_back(row);
  }
  known_ = std::move(known);
  return kept;
}

// Returns what the latest read has found out about a row, so that a usual scan needs no call other
// than that for the table. The system may give an index to another interface later; the description
// tells the two apart.
InterfaceReader::KnownRow InterfaceReader::Recall(const InterfaceRow& row,
                                                  std::size_t position) const {
  std::string description = platform::DescriptionBytes(row);
  const auto is_this = [&](const KnownRow& known) {
    return known.index == row.dwIndex && known.description == description;
  };
  if (position < known_.size() && is_this(known_[position])) return known_[position];
  const auto found = std::find_if(known_.begin(), known_.end(), is_this);
  if (found != known_.end()) return *found;
  return {row.dwIndex, std::move(description), std::nullopt};
}

// For an interface that is about to come or go the system may have no answer yet. A filter that is
// taken for a card would count the card's bytes a second time; a card that is never answered for
// would never count.
void InterfaceReader::AskAbout(KnownRow& row) {
  row.filter = source_.IsFilter(row.index);
  if (!row.filter && ++row.refusals == kMostRefusals) row.filter = false;
}

}  // namespace engine
