#include "platform/windows/services/services.h"
#include "platform/windows/services/tray_icon.h"

namespace platform::windows {

std::unique_ptr<TrayIcon> NotificationArea::CreateIcon(TrayIconEvents& events) {
  return std::make_unique<ShellTrayIcon>(class_, events);
}

}  // namespace platform::windows
