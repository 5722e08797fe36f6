#include "tests/desktop/driver/traffic.h"

#include <span>

#include "platform/text.h"
#include "platform/windows/system_error.h"
#include "platform/windows/win32.h"

namespace desktop {

std::vector<AdapterRow> ReadAdapters() {
  std::vector<std::byte> ample(1U << 20U);
  auto& table = *reinterpret_cast<MIB_IFTABLE*>(ample.data());
  auto size = static_cast<ULONG>(ample.size());
  const DWORD result = ::GetIfTable(&table, &size, FALSE);
  if (result != 0) platform::windows::ThrowSystemError("GetIfTable", result);

  std::vector<AdapterRow> rows;
  for (const MIB_IFROW& row : std::span(table.table, table.dwNumEntries)) {
    const auto* description = reinterpret_cast<const char*>(row.bDescr);
    rows.push_back({platform::AsciiLower({description, ::strnlen(description, sizeof(row.bDescr))}),
                    row.dwInOctets, row.dwOutOctets});
  }
  return rows;
}

}  // namespace desktop
