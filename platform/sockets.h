// The sockets library, as far as the machine's own address needs it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Sockets {
 public:
  virtual ~Sockets() = default;

  // Starts the library (WSAStartup); `version` is 0x0101 for 1.1. Returns false when the system
  // refuses.
  virtual bool Start(std::uint16_t version) = 0;
  // Returns the machine's name, at most 63 characters (gethostname with 64 bytes), or an empty text
  // on failure.
  [[nodiscard]] virtual std::string HostName() = 0;
  // Returns the IPv4 addresses of a host as dotted text, in the order of the answer (gethostbyname,
  // inet_ntoa), or nullopt when the look-up fails. The look-up may block for seconds.
  [[nodiscard]] virtual std::optional<std::vector<std::string>> HostAddresses(
      std::string_view host) = 0;
  // Takes back one Start (WSACleanup).
  virtual void Cleanup() = 0;
};

}  // namespace platform
