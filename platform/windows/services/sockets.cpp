#include <array>
#include <cstring>

#include "platform/text.h"
#include "platform/windows/services/services.h"
#include "platform/windows/win32.h"

namespace platform::windows {

bool Sockets::Start(std::uint16_t version) {
  WSADATA data{};
  return ::WSAStartup(version, &data) == 0;
}

// The names that this library takes and gives are bytes; host names have only ASCII in them.

std::string Sockets::HostName() {
  std::array<char, 64> name{};
  if (::gethostname(name.data(), static_cast<int>(name.size())) != 0) return {};
  // A name that fills the buffer has no terminating NUL.
  return ValidUtf8(std::string_view(name.data(), ::strnlen(name.data(), name.size() - 1)));
}

std::optional<std::vector<std::string>> Sockets::HostAddresses(std::string_view host) {
  const hostent* entry = ::gethostbyname(std::string(host).c_str());
  if (entry == nullptr || entry->h_addrtype != AF_INET) return std::nullopt;
  std::vector<std::string> addresses;
  for (char** next = entry->h_addr_list; *next != nullptr; ++next) {
    in_addr address{};
    std::memcpy(&address, *next, sizeof(address));
    // The text belongs to the library until the next call.
    if (const char* text = ::inet_ntoa(address)) addresses.emplace_back(text);
  }
  return addresses;
}

void Sockets::Cleanup() { ::WSACleanup(); }

}  // namespace platform::windows
