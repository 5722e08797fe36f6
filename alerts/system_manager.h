// What the program does to the system itself: it ends the session and presses lock keys.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/keyboard.h"
#include "toolkit/application.h"

namespace alerts {

// Each value is the flag of ExitWindowsEx.
enum class ExitType : std::uint32_t {
  xLogoff = 0,
  xReboot = 2,
  xShutDown = 1,
  xPowerOff = 8,
  xForce = 4,
};

class Shutdown {
 public:
  explicit Shutdown(toolkit::Application& app) : app_(app) {}

  ExitType Exittype = ExitType::xShutDown;
  bool Confirm = false;
  std::string ConfirmText = "Are you sure you want to reboot your PC now ?";

  std::function<void()> OnBeforeShutdown;
  // Asks the user a Yes/No question and returns true for Yes. Without a handler the answer is No.
  std::function<bool(std::string_view question)> OnConfirm;
  std::function<void(std::uint32_t code)> OnError;

  // Asks the system to end the session (ExitWindowsEx), with the privilege that this takes enabled
  // meanwhile. Returns 0 when the session ends, and the program then ends too; 0 when the user said
  // No; otherwise the system's error code. In the last two cases the program goes on.
  std::uint32_t Execute();

 private:
  toolkit::Application& app_;
};

// The lock keys. Each state is the key's byte of the keyboard state: 1 for on, 0 for off. Another
// value means that the key is held down just now, so that its state is not known.
class TQelSysKeys {
 public:
  explicit TQelSysKeys(platform::Keyboard& keyboard) : keyboard_(keyboard) {}

  [[nodiscard]] std::uint8_t CapsLock() const { return keyboard_.State(kCapital); }
  [[nodiscard]] std::uint8_t NumLock() const { return keyboard_.State(kNumLock); }
  [[nodiscard]] std::uint8_t ScrollLock() const { return keyboard_.State(kScroll); }

  // Press and release the key, which toggles it whatever its state is. Call them only when the
  // state differs from the wanted one.
  void ToggleCapsLock() { Stroke(kCapital); }
  void ToggleNumLock() { Stroke(kNumLock); }
  void ToggleScrollLock() { Stroke(kScroll); }

 private:
  static constexpr std::uint8_t kCapital = 20;
  static constexpr std::uint8_t kNumLock = 144;
  static constexpr std::uint8_t kScroll = 145;
  // The scan code of Num Lock is sent for all three keys: the system goes by the virtual key.
  static constexpr std::uint8_t kScanCode = 69;

  void Stroke(std::uint8_t virtual_key) {
    keyboard_.Send(virtual_key, kScanCode, platform::kKeyExtended);
    keyboard_.Send(virtual_key, kScanCode, platform::kKeyExtended | platform::kKeyUp);
  }

  platform::Keyboard& keyboard_;
};

struct SystemManager {
  explicit SystemManager(toolkit::Application& app)
      : shutdown(app), sys_keys(app.Platform().keyboard) {}

  Shutdown shutdown;
  TQelSysKeys sys_keys;
};

}  // namespace alerts
