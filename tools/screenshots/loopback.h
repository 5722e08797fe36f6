// Traffic where there is no network line of the tests.
#pragma once

#include <cstdint>
#include <string>

#include "tests/desktop/driver/win.h"

namespace desktop {

// Sends to itself through the loopback.
class Loopback {
 public:
  // Throws std::runtime_error when there are no sockets to have.
  Loopback();
  ~Loopback();
  Loopback(const Loopback&) = delete;
  Loopback& operator=(const Loopback&) = delete;

  // Sends and receives so many datagrams of `bytes` each; with the heads of UDP and IP a datagram
  // of 996 bytes makes 1024.
  void Send(int datagrams, int bytes = 996);

  // The adapter that counts this traffic, found by sending some; an empty name when none does, as
  // on Windows itself, whose loopback counts nothing.
  [[nodiscard]] std::string FindAdapter();

 private:
  SOCKET socket_ = INVALID_SOCKET;
  std::uint16_t port_ = 0;
};

}  // namespace desktop
