#include "tests/desktop/driver/traffic.h"

#include <cstring>

#include "platform/text.h"
#include "platform/windows/services/services.h"
#include "platform/windows/system_error.h"

namespace desktop {

std::vector<AdapterRow> ReadAdapters() {
  platform::windows::InterfaceTable table;
  std::vector<std::byte> buffer;
  std::uint32_t size = 0;
  std::uint32_t result = table.Read({}, size);
  while (result == platform::kInsufficientBuffer) {
    buffer.resize(size);
    result = table.Read(buffer, size);
  }
  if (result != 0) platform::windows::ThrowSystemError("GetIfTable", result);

  std::vector<AdapterRow> rows;
  platform::InterfaceRow row;
  for (auto at = platform::kInterfaceTableHead; at + sizeof(row) <= size; at += sizeof(row)) {
    std::memcpy(&row, &buffer[at], sizeof(row));
    rows.push_back(
        {platform::AsciiLower(platform::DescriptionBytes(row)), row.dwInOctets, row.dwOutOctets});
  }
  return rows;
}

}  // namespace desktop
