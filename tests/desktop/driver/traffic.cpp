#include "tests/desktop/driver/traffic.h"

#include <algorithm>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"

namespace desktop {
namespace {

using platform::windows::ThrowSystemError;

std::string LowerCaseName(const MIB_IFROW& row) {
  const auto* text = reinterpret_cast<const char*>(row.bDescr);
  std::string name(text, ::strnlen(text, std::min<std::size_t>(row.dwDescrLen, MAXLEN_IFDESCR)));
  std::transform(name.begin(), name.end(), name.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return name;
}

}  // namespace

std::vector<AdapterRow> ReadAdapters() {
  std::vector<std::byte> buffer;
  ULONG size = 0;
  DWORD result = NO_ERROR;
  do {
    buffer.resize(size + sizeof(MIB_IFTABLE));
    size = static_cast<ULONG>(buffer.size());
    result = ::GetIfTable(reinterpret_cast<MIB_IFTABLE*>(buffer.data()), &size, FALSE);
  } while (result == ERROR_INSUFFICIENT_BUFFER);
  if (result != NO_ERROR) ThrowSystemError("GetIfTable", result);

  const auto& table = *reinterpret_cast<const MIB_IFTABLE*>(buffer.data());
  std::vector<AdapterRow> rows;
  for (DWORD index = 0; index < table.dwNumEntries; ++index) {
    const MIB_IFROW& row = table.table[index];
    rows.push_back({LowerCaseName(row), row.dwInOctets, row.dwOutOctets, row.dwSpeed, row.dwMtu});
  }
  return rows;
}

}  // namespace desktop
