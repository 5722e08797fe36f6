// Windows Sockets.
#pragma once

#include "platform/sockets.h"

namespace platform::windows {

class Sockets : public platform::Sockets {
 public:
  bool Start(std::uint16_t version) override;
  [[nodiscard]] std::string HostName() override;
  [[nodiscard]] std::optional<std::vector<std::string>> HostAddresses(
      std::string_view host) override;
  void Cleanup() override;
};

}  // namespace platform::windows
