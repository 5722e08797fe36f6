#include "tests/desktop/driver/traffic.h"

#include <algorithm>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"

namespace desktop {
namespace {

using platform::windows::ThrowSystemError;

std::string LowerCaseName(const MIB_IFROW& row) {
  const auto* text = reinterpret_cast<const char*>(row.bDescr);
  std::string name(text, ::strnlen(text, std::min<std::size_t>(row.dwDescrLen, MAXLEN_IFDESCR)));
  std::transform(name.begin(), name.end(), name.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return name;
}

sockaddr_in LoopbackAddress(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
  address.sin_port = ::htons(port);
  return address;
}

}  // namespace

std::vector<AdapterRow> ReadAdapters() {
  std::vector<std::byte> buffer;
  ULONG size = 0;
  DWORD result = NO_ERROR;
  do {
    buffer.resize(size + sizeof(MIB_IFTABLE));
    size = static_cast<ULONG>(buffer.size());
    result = ::GetIfTable(reinterpret_cast<MIB_IFTABLE*>(buffer.data()), &size, FALSE);
  } while (result == ERROR_INSUFFICIENT_BUFFER);
  if (result != NO_ERROR) ThrowSystemError("GetIfTable", result);

  const auto& table = *reinterpret_cast<const MIB_IFTABLE*>(buffer.data());
  std::vector<AdapterRow> rows;
  for (DWORD index = 0; index < table.dwNumEntries; ++index) {
    const MIB_IFROW& row = table.table[index];
    rows.push_back({LowerCaseName(row), row.dwInOctets, row.dwOutOctets, row.dwSpeed, row.dwMtu});
  }
  return rows;
}

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
