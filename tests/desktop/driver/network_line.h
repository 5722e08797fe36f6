// Adapters that the tests plug in, and on which nothing moves but what they ask for.
#pragma once

#include <string>
#include <string_view>

#include "tests/desktop/driver/win.h"

namespace desktop {

// The other end of tests/desktop/line/network_line.py, which runs the test program where there is
// such a line.
class NetworkLine {
 public:
  NetworkLine();
  // Every adapter goes.
  ~NetworkLine();
  NetworkLine(const NetworkLine&) = delete;
  NetworkLine& operator=(const NetworkLine&) = delete;

  [[nodiscard]] bool Available() const { return socket_ != INVALID_SOCKET; }

  // All return when it has happened, and throw std::runtime_error when it cannot.
  void Add(std::string_view adapter) { Ask("add " + std::string(adapter)); }
  void Remove(std::string_view adapter) { Ask("remove " + std::string(adapter)); }
  // So many bytes, as the system counts them; at least 28, the heads of one packet.
  void Receive(std::string_view adapter, int bytes) { Move("receive", adapter, bytes); }
  void Send(std::string_view adapter, int bytes) { Move("send", adapter, bytes); }

 private:
  void Move(std::string_view word, std::string_view adapter, int bytes);
  void Ask(const std::string& request);

  SOCKET socket_ = INVALID_SOCKET;
};

}  // namespace desktop
