// Network traffic whose size is known, and the system's own count of it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/desktop/driver/win.h"

namespace desktop {

// A row of the system's interface table.
struct AdapterRow {
  std::string name;      // its description in lower case, under which the program stores its values
  std::uint32_t in = 0;  // bytes, wraps at 2^32
  std::uint32_t out = 0;
  std::uint32_t speed = 0;  // bits per second
  std::uint32_t mtu = 0;
};

// All rows in the system's order. Throws std::runtime_error when it refuses.
[[nodiscard]] std::vector<AdapterRow> ReadAdapters();

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
