// The state of keys, and key strokes sent as if they were typed.
#pragma once

#include <cstdint>

namespace platform {

class Keyboard {
 public:
  virtual ~Keyboard() = default;

  // Returns the key's byte of the keyboard state (GetKeyboardState): bit 0 is set when a lock key
  // is on, bit 7 when the key is held down. Returns 0 when the system cannot say.
  [[nodiscard]] virtual std::uint8_t State(std::uint8_t virtual_key) = 0;

  // Sends one key event (keybd_event) with these codes and flags; the extra information is 0.
  virtual void Send(std::uint8_t virtual_key, std::uint8_t scan_code, std::uint32_t flags) = 0;
};

inline constexpr std::uint32_t kKeyExtended = 1;  // KEYEVENTF_EXTENDEDKEY
inline constexpr std::uint32_t kKeyUp = 2;        // KEYEVENTF_KEYUP

}  // namespace platform
