#include "engine/adapter.h"

#include <algorithm>
#include <cstddef>

#include "platform/text.h"
#include "settings/adapter_values.h"

namespace engine {

using settings::KeyIndex;

std::string AdapterDescription(const platform::InterfaceRow& row, platform::Locale& locale) {
  return locale.FromCodePage(platform::DescriptionBytes(row));
}

bool IsLoopback(std::string_view description) {
  return platform::AsciiLower(description) == "ms tcp loopback interface";
}

std::string FormatMacAddress(std::span<const std::uint8_t> address) {
  if (address.empty()) return "00-00-00-00-00-00";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t byte : address) {
    if (!text.empty()) text += '-';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15U];
  }
  return text;
}

std::string FormatMacAddress(const platform::InterfaceRow& row) {
  const std::span<const std::uint8_t> address = row.bPhysAddr;
  return FormatMacAddress(address.first(std::min<std::size_t>(row.dwPhysAddrLen, address.size())));
}

void WriteAdapterData(settings::Store& store, std::string_view description,
                      const platform::InterfaceRow& row) {
  const std::string name = settings::AdapterName(description);
  const auto write = [&](std::string_view suffix, const std::string& value) {
    store.WriteString(KeyIndex::kAdapterDatas, name + std::string(suffix), value);
  };
  write(settings::kMacAddressSuffix, FormatMacAddress(row));
  write(settings::kSpeedSuffix, std::to_string(row.dwSpeed));
  write(settings::kMtuSuffix, std::to_string(row.dwMtu));
}

}  // namespace engine
