#include "tools/screenshots/loopback.h"

#include <vector>

#include "platform/windows/system_error.h"
#include "tests/desktop/driver/traffic.h"
#include "tests/desktop/driver/wait.h"

namespace desktop {
namespace {

using platform::windows::ThrowSystemError;

sockaddr_in LoopbackAddress(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
  address.sin_port = ::htons(port);
  return address;
}

}  // namespace

Loopback::Loopback() {
  WSADATA data{};
  const int started = ::WSAStartup(MAKEWORD(2, 2), &data);
  if (started != 0) ThrowSystemError("WSAStartup", static_cast<DWORD>(started));
  socket_ = ::socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in address = LoopbackAddress(0);
  int length = sizeof(address);
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  const DWORD timeout_ms = kAmpleMs;
  if (socket_ == INVALID_SOCKET || ::bind(socket_, plain, length) != 0 ||
      ::getsockname(socket_, plain, &length) != 0 ||
      ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&timeout_ms),
                   sizeof(timeout_ms)) != 0) {
    ThrowSystemError("a socket on the loopback", static_cast<DWORD>(::WSAGetLastError()));
  }
  port_ = ::ntohs(address.sin_port);
}

Loopback::~Loopback() {
  if (socket_ != INVALID_SOCKET) ::closesocket(socket_);
  ::WSACleanup();
}

void Loopback::Send(int datagrams, int bytes) {
  const sockaddr_in address = LoopbackAddress(port_);
  std::vector<char> data(static_cast<std::size_t>(bytes));
  for (int count = 0; count < datagrams; ++count) {
    if (::sendto(socket_, data.data(), bytes, 0, reinterpret_cast<const sockaddr*>(&address),
                 sizeof(address)) != bytes ||
        ::recv(socket_, data.data(), bytes, 0) != bytes) {
      ThrowSystemError("a datagram on the loopback", static_cast<DWORD>(::WSAGetLastError()));
    }
  }
}

std::string Loopback::FindAdapter() {
  constexpr int kDatagrams = 1000;
  const std::vector<AdapterRow> before = ReadAdapters();
  Send(kDatagrams);
  const std::vector<AdapterRow> after = ReadAdapters();
  if (before.size() != after.size()) return {};
  for (std::size_t row = 0; row < after.size(); ++row) {
    // Both ways, and not much besides.
    const std::uint32_t sent = after[row].out - before[row].out;
    const std::uint32_t received = after[row].in - before[row].in;
    if (sent >= kDatagrams * 996U && sent == received) return after[row].name;
  }
  return {};
}

}  // namespace desktop
