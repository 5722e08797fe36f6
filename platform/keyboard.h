// The state of keys, and key strokes sent as if they were typed.
#pragma once

#include <cstdint>

namespace platform {

class Keyboard {
 public:
  virtual ~Keyboard() = default;

  // The key's byte of the keyboard state (GetKeyboardState): bit 0 on, for a lock key; bit 7 held
  // down. 0 when the system cannot say.
  [[nodiscard]] virtual std::uint8_t State(std::uint8_t virtual_key) = 0;

  // One event (keybd_event) with these codes and flags; extra information 0.
  virtual void Send(std::uint8_t virtual_key, std::uint8_t scan_code, std::uint32_t flags) = 0;
};

inline constexpr std::uint32_t kKeyExtended = 1;  // KEYEVENTF_EXTENDEDKEY
inline constexpr std::uint32_t kKeyUp = 2;        // KEYEVENTF_KEYUP

}  // namespace platform
