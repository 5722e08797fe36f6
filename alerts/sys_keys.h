// The lock keys of the keyboard.
#pragma once

#include <cstdint>

#include "platform/keyboard.h"

namespace alerts {

// A lock key as its byte of the keyboard state: 1 on, 0 off; another value means that the key is
// held down just now, and then nobody knows.
class TQelSysKeys {
 public:
  explicit TQelSysKeys(platform::Keyboard& keyboard) : keyboard_(keyboard) {}

  [[nodiscard]] std::uint8_t CapsLock() const { return keyboard_.State(kCapital); }
  [[nodiscard]] std::uint8_t NumLock() const { return keyboard_.State(kNumLock); }
  [[nodiscard]] std::uint8_t ScrollLock() const { return keyboard_.State(kScroll); }

  // Presses and releases the key, which toggles it whatever its state is. So it is only called when
  // the state differs from the wanted one.
  void ToggleCapsLock() { Stroke(kCapital); }
  void ToggleNumLock() { Stroke(kNumLock); }
  void ToggleScrollLock() { Stroke(kScroll); }

 private:
  static constexpr std::uint8_t kCapital = 20;
  static constexpr std::uint8_t kNumLock = 144;
  static constexpr std::uint8_t kScroll = 145;
  // That of Num Lock, sent for all three: the system goes by the virtual key.
  static constexpr std::uint8_t kScanCode = 69;

  void Stroke(std::uint8_t virtual_key) {
    keyboard_.Send(virtual_key, kScanCode, platform::kKeyExtended);
    keyboard_.Send(virtual_key, kScanCode, platform::kKeyExtended | platform::kKeyUp);
  }

  platform::Keyboard& keyboard_;
};

}  // namespace alerts
