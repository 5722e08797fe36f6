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
  // So many bytes come in and go out at once, as the system counts them: none, or at least 28, the
  // heads of one packet.
  void Move(std::string_view adapter, int received, int sent);

 private:
  void Ask(const std::string& request);

  SOCKET socket_ = INVALID_SOCKET;
};

}  // namespace desktop
