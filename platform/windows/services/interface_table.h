// The interface table of the IP Helper library.
#pragma once

#include "platform/interface_table.h"
#include "platform/windows/services/ip_helper.h"

namespace platform::windows {

class InterfaceTable : public platform::InterfaceTable {
 public:
  [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override;
  [[nodiscard]] std::optional<bool> IsFilter(std::uint32_t index) override;
  [[nodiscard]] std::optional<LongOctets> Octets(std::uint32_t index) override;
};

}  // namespace platform::windows
