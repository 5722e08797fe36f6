// The machine's address for a window that asks twice a second.
#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"
#include "platform/sockets.h"

namespace stats {

class HostAddress {
 public:
  // Both outlive it.
  HostAddress(platform::Sockets& sockets, platform::Clock& clock)
      : sockets_(sockets), clock_(clock) {}

  // The last address of the machine's name; empty when the look-up fails. The look-up holds up the
  // one thread, so after a slow one the last answer stands for twenty times as long as it took.
  [[nodiscard]] const std::string& Get();

 private:
  platform::Sockets& sockets_;
  platform::Clock& clock_;
  std::string address_;
  std::int64_t not_before_ = 0;  // steady milliseconds
};

}  // namespace stats
