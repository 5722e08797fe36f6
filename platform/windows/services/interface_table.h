// The interface table of the IP Helper library.
#pragma once

#include "platform/interface_table.h"
#include "platform/windows/services/ip_helper.h"

namespace platform::windows {

class InterfaceTable : public platform::InterfaceTable {
 public:
  InterfaceTable();

  [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override;
  [[nodiscard]] std::optional<bool> IsFilter(std::uint32_t index) override;
  [[nodiscard]] std::optional<LongOctets> Octets(std::uint32_t index) override;

 private:
  using GetEntry = DWORD(WINAPI*)(MIB_IF_ROW2*);

  [[nodiscard]] std::optional<MIB_IF_ROW2> Entry(std::uint32_t index) const;

  // Looked up at run time: the call is younger than the system that GetIfTable came with. Null when
  // it is missing; such a system has no filters in its table either.
  GetEntry get_entry_;
};

}  // namespace platform::windows
