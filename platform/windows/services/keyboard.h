// The keyboard.
#pragma once

#include "platform/keyboard.h"

namespace platform::windows {

class Keyboard final : public platform::Keyboard {
 public:
  [[nodiscard]] std::uint8_t State(std::uint8_t virtual_key) override;
  void Send(std::uint8_t virtual_key, std::uint8_t scan_code, std::uint32_t flags) override;
};

}  // namespace platform::windows
