#include "platform/memory/sockets.h"

#include "platform/text.h"

namespace platform::memory {

bool Sockets::Start(std::uint16_t version) {
  ++starts;
  last_version = version;
  // The library speaks versions 1.0 to 2.2; the low byte is the major number.
  if (notebook_.Fails() || (version & 0xFF) == 0) return false;
  ++running_;
  return true;
}

std::string Sockets::HostName() {
  if (notebook_.Fails() || running_ == 0 || host_name.size() > 63) return {};
  return host_name;
}

std::optional<std::vector<std::string>> Sockets::HostAddresses(std::string_view host) {
  ++look_ups;
  if (during_look_up) during_look_up();
  if (notebook_.Fails() || running_ == 0) return std::nullopt;
  const std::string name = AsciiLower(host);
  if (name == "localhost") return std::vector<std::string>{"127.0.0.1"};
  // An empty name is the machine itself.
  if (!name.empty() && name != AsciiLower(host_name)) return std::nullopt;
  return addresses;
}

void Sockets::Cleanup() {
  ++cleanups;
  if (running_ > 0) --running_;
}

}  // namespace platform::memory
