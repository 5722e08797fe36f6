#include "platform/windows/windows/application_window.h"

namespace platform::windows {

ApplicationWindow::ApplicationWindow(const WindowClass& window_class) {
  Create(window_class, {WS_POPUP, 0}, nullptr, {});
}

std::optional<LRESULT> ApplicationWindow::Handle(const Message& message) {
  // To close it would destroy every window with it, unasked. Whoever wants the program to end asks
  // its main window as well.
  if (message.id == WM_CLOSE) return 0;
  return std::nullopt;
}

}  // namespace platform::windows
