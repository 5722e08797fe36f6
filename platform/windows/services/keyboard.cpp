#include <array>

#include "platform/windows/services/services.h"
#include "platform/windows/win32.h"

namespace platform::windows {

std::uint8_t Keyboard::State(std::uint8_t virtual_key) {
  std::array<BYTE, 256> states{};
  // This call brings the keyboard state of a thread without the focus up to date.
  (void)::GetKeyState(virtual_key);
  if (!::GetKeyboardState(states.data())) return 0;
  return states[virtual_key];
}

void Keyboard::Send(std::uint8_t virtual_key, std::uint8_t scan_code, std::uint32_t flags) {
  ::keybd_event(virtual_key, scan_code, flags, 0);
}

}  // namespace platform::windows
