#include "platform/interface_table.h"

#include <algorithm>

namespace platform {

std::string DescriptionBytes(const InterfaceRow& row) {
  const std::size_t length = std::min<std::size_t>(row.dwDescrLen, row.bDescr.size());
  const auto end = row.bDescr.begin() + static_cast<std::ptrdiff_t>(length);
  return {row.bDescr.begin(), std::find(row.bDescr.begin(), end, std::uint8_t{0})};
}

}  // namespace platform
