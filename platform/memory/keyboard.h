// A keyboard whose lock keys follow the strokes that are sent.
#pragma once

#include <array>
#include <vector>

#include "platform/keyboard.h"

namespace platform::memory {

struct KeyEvent {
  std::uint8_t virtual_key;
  std::uint8_t scan_code;
  std::uint32_t flags;
  friend bool operator==(const KeyEvent&, const KeyEvent&) = default;
};

class Keyboard final : public platform::Keyboard {
 public:
  std::uint8_t State(std::uint8_t virtual_key) override {
    ++state_questions;
    return states[virtual_key];
  }
  // A press toggles the lock bit, as the system does for lock keys.
  void Send(std::uint8_t virtual_key, std::uint8_t scan_code, std::uint32_t flags) override {
    sent.push_back({virtual_key, scan_code, flags});
    if ((flags & kKeyUp) == 0) states[virtual_key] ^= 1U;
  }

  std::array<std::uint8_t, 256> states{};
  std::vector<KeyEvent> sent;
  int state_questions = 0;
};

}  // namespace platform::memory
