// The notification area of the taskbar.
#pragma once

#include "platform/notification_area.h"
#include "platform/windows/windows/window_class.h"

namespace platform::windows {

class NotificationArea final : public platform::NotificationArea {
 public:
  [[nodiscard]] std::unique_ptr<TrayIcon> CreateIcon(TrayIconEvents& events) override;

 private:
  WindowClass class_{"TremoluxTray"};
};

}  // namespace platform::windows
