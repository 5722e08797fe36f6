#include "platform/windows/windows/application_window.h"

namespace platform::windows {

ApplicationWindow::ApplicationWindow(const WindowClass& window_class) {
  Create(window_class, {WS_POPUP, 0}, nullptr, {});
}

std::optional<LRESULT> ApplicationWindow::Handle(const Message& message) {
  // Closing this window would destroy every window of the program without a question. A program
  // that wants this one to end also asks its main window.
  if (message.id == WM_CLOSE) return 0;
  return std::nullopt;
}

}  // namespace platform::windows
