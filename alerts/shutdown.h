// Ends the Windows session.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace toolkit {
class Application;
}

namespace alerts {

// By the flag of ExitWindowsEx.
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
  // Asks a Yes/No question; true for Yes. Without a handler the answer is No.
  std::function<bool(std::string_view question)> OnConfirm;
  std::function<void(std::uint32_t code)> OnError;

  // Asks the system to end the session, with the privilege that this takes enabled meanwhile. On
  // success the program ends too. Returns 0, also when the user said No, or the system's error
  // code; the program then goes on.
  std::uint32_t Execute();

 private:
  toolkit::Application& app_;
};

}  // namespace alerts
