#include <cstddef>

#include "platform/windows/services/services.h"

namespace platform::windows {

static_assert(sizeof(InterfaceRow) == sizeof(MIB_IFROW));
static_assert(offsetof(InterfaceRow, dwIndex) == offsetof(MIB_IFROW, dwIndex));
static_assert(offsetof(InterfaceRow, dwInOctets) == offsetof(MIB_IFROW, dwInOctets));
static_assert(offsetof(InterfaceRow, dwOutOctets) == offsetof(MIB_IFROW, dwOutOctets));
static_assert(offsetof(InterfaceRow, bDescr) == offsetof(MIB_IFROW, bDescr));
static_assert(kInterfaceTableHead == offsetof(MIB_IFTABLE, table));
static_assert(kInsufficientBuffer == ERROR_INSUFFICIENT_BUFFER);

namespace {

std::optional<MIB_IF_ROW2> Entry(std::uint32_t index) {
  MIB_IF_ROW2 entry{};
  entry.InterfaceIndex = index;
  if (::GetIfEntry2(&entry) != NO_ERROR) return std::nullopt;
  return entry;
}

}  // namespace

std::uint32_t InterfaceTable::Read(std::span<std::byte> buffer, std::uint32_t& size) {
  auto needed = static_cast<ULONG>(buffer.size());
  auto* table = buffer.empty() ? nullptr : reinterpret_cast<MIB_IFTABLE*>(buffer.data());
  const DWORD result = ::GetIfTable(table, &needed, FALSE);
  if (result == NO_ERROR || result == ERROR_INSUFFICIENT_BUFFER) size = needed;
  return result;
}

std::optional<bool> InterfaceTable::IsFilter(std::uint32_t index) {
  const auto entry = Entry(index);
  if (!entry) return std::nullopt;
  return entry->InterfaceAndOperStatusFlags.FilterInterface != 0;
}

std::optional<LongOctets> InterfaceTable::Octets(std::uint32_t index) {
  const auto entry = Entry(index);
  if (!entry) return std::nullopt;
  return LongOctets{entry->InOctets, entry->OutOctets};
}

}  // namespace platform::windows
