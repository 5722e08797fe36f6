#include "platform/memory/sockets.h"

namespace platform::memory {

bool Sockets::Start(std::uint16_t version) {
  ++starts;
  last_version = version;
  if (notebook_.Fails()) return false;
  ++running_;
  return true;
}

std::string Sockets::HostName() {
  return notebook_.Fails() || running_ == 0 ? std::string() : host_name;
}

std::optional<std::vector<std::string>> Sockets::HostAddresses(std::string_view host) {
  ++look_ups;
  if (during_look_up) during_look_up();
  // An empty name is the machine itself.
  const bool known = host.empty() || host == host_name;
  return notebook_.Fails() || running_ == 0 || !known ? std::nullopt : addresses;
}

void Sockets::Cleanup() {
  ++cleanups;
  if (running_ > 0) --running_;
}

}  // namespace platform::memory
