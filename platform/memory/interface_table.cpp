#include "platform/memory/interface_table.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace platform::memory {
namespace {

constexpr std::uint32_t kGeneralFailure = 31;  // ERROR_GEN_FAILURE

}  // namespace

InterfaceRow MakeRow(std::string_view description, std::initializer_list<std::uint8_t> mac,
                     std::uint32_t mtu, std::uint32_t speed) {
  InterfaceRow row;
  row.dwType = 6;  // Ethernet
  row.dwMtu = mtu;
  row.dwSpeed = speed;
  const std::size_t mac_length = std::min(mac.size(), row.bPhysAddr.size());
  std::copy_n(mac.begin(), mac_length, row.bPhysAddr.begin());
  row.dwPhysAddrLen = static_cast<std::uint32_t>(mac_length);
  row.dwAdminStatus = 1;
  row.dwOperStatus = 5;  // operational
  // One byte always remains for the terminating NUL.
  const std::string_view kept = description.substr(0, row.bDescr.size() - 1);
  std::transform(kept.begin(), kept.end(), row.bDescr.begin(),
                 [](char c) { return static_cast<std::uint8_t>(c); });
  row.dwDescrLen = static_cast<std::uint32_t>(kept.size()) + 1;
  return row;
}

std::uint32_t InterfaceTable::Read(std::span<std::byte> buffer, std::uint32_t& size) {
  ++reads;
  if (notebook_.Fails()) return kGeneralFailure;
  if (const auto failure = failures_.find(reads); failure != failures_.end()) {
    return failure->second;
  }

  const std::size_t needed = kInterfaceTableHead + rows.size() * sizeof(InterfaceRow);
  size = static_cast<std::uint32_t>(needed);
  if (buffer.size() < needed) {
    if (after_size_read) std::exchange(after_size_read, nullptr)();
    return kInsufficientBuffer;
  }
  const auto count = static_cast<std::uint32_t>(rows.size());
  std::memcpy(buffer.data(), &count, sizeof count);
  std::copy_n(std::as_bytes(std::span(rows)).begin(), needed - sizeof count,
              buffer.begin() + sizeof count);
  return 0;
}

std::optional<bool> InterfaceTable::IsFilter(std::uint32_t index) {
  ++filter_questions;
  if (notebook_.Fails() || RowOf(index) == nullptr) return std::nullopt;
  return filters.contains(index);
}

std::optional<LongOctets> InterfaceTable::Octets(std::uint32_t index) {
  ++octet_questions;
  const InterfaceRow* row = RowOf(index);
  if (notebook_.Fails() || row == nullptr || hidden.contains(index)) return std::nullopt;
  const LongOctets& wrapped = wrapped_[index];
  return LongOctets{wrapped.in + row->dwInOctets, wrapped.out + row->dwOutOctets};
}

const InterfaceRow* InterfaceTable::RowOf(std::uint32_t index) const {
  const auto found = std::find_if(
      rows.begin(), rows.end(), [index](const InterfaceRow& row) { return row.dwIndex == index; });
  return found == rows.end() ? nullptr : &*found;
}

InterfaceRow& InterfaceTable::AddRow(InterfaceRow row) {
  if (row.dwIndex == 0) row.dwIndex = last_index_ + 1;
  last_index_ = std::max(last_index_, row.dwIndex);
  return rows.emplace_back(row);
}

void InterfaceTable::RemoveRow(std::size_t position) {
  rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(position));
}

void InterfaceTable::AddTraffic(std::size_t position, std::uint32_t received, std::uint32_t sent) {
  constexpr std::uint64_t kWrap = std::uint64_t{1} << 32U;
  InterfaceRow& row = rows.at(position);
  row.dwInOctets += received;
  row.dwOutOctets += sent;
  if (row.dwInOctets < received) wrapped_[row.dwIndex].in += kWrap;
  if (row.dwOutOctets < sent) wrapped_[row.dwIndex].out += kWrap;
}

}  // namespace platform::memory
