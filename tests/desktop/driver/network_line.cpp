#include "tests/desktop/driver/network_line.h"

#include <cstdlib>
#include <stdexcept>

#include "platform/windows/system_error.h"

namespace desktop {

NetworkLine::NetworkLine() {
  WSADATA data{};
  ::WSAStartup(MAKEWORD(2, 2), &data);
  const char* port = std::getenv("TREMOLUX_TEST_LINE");
  if (port == nullptr) return;
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
  address.sin_port = ::htons(static_cast<u_short>(std::atoi(port)));
  socket_ = ::socket(AF_INET, SOCK_STREAM, 0);
  if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
    platform::windows::ThrowSystemError("connect to the line",
                                        static_cast<DWORD>(::WSAGetLastError()));
  }
}

NetworkLine::~NetworkLine() {
  if (Available()) ::closesocket(socket_);
  ::WSACleanup();
}

void NetworkLine::Move(std::string_view adapter, int received, int sent) {
  Ask("move " + std::string(adapter) + " " + std::to_string(received) + " " + std::to_string(sent));
}

void NetworkLine::Ask(const std::string& request) {
  const std::string line = request + "\n";
  ::send(socket_, line.data(), static_cast<int>(line.size()), 0);
  std::string answer;
  for (char c = 0; c != '\n';) {
    if (::recv(socket_, &c, 1, 0) != 1) throw std::runtime_error("the line is gone");
    answer += c;
  }
  if (answer != "ok\n") throw std::runtime_error("the line, asked to " + request + ": " + answer);
}

}  // namespace desktop
