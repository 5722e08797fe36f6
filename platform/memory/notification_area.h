// A notification area that tests look at and click into.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/memory/canvas.h"
#include "platform/notification_area.h"

namespace platform::memory {

struct Balloon {
  std::string title;
  std::string text;
  BalloonIcon icon = BalloonIcon::kNone;
  int seconds = 0;
};

class NotificationArea final : public platform::NotificationArea {
 public:
  explicit NotificationArea(Screen& screen) : screen_(screen) {}

  [[nodiscard]] std::unique_ptr<TrayIcon> CreateIcon(TrayIconEvents& events) override;

  // Returns the picture that the area shows, or null when there is no icon or it has no picture
  // yet.
  [[nodiscard]] const Raster* Picture() const { return picture_.get(); }
  [[nodiscard]] bool Present() const { return events_ != nullptr; }

  void Click() {
    if (events_ != nullptr) events_->OnTrayClick();
  }
  void RightClick(Point at) {
    if (events_ != nullptr) events_->OnTrayMenu(at);
  }

  std::string hint;
  std::vector<Balloon> balloons;
  int picture_updates = 0;
  int picture_size = 16;
  bool busy = false;  // the shell takes no picture

 private:
  class Icon;

  Screen& screen_;
  TrayIconEvents* events_ = nullptr;
  std::unique_ptr<Raster> picture_;
};

}  // namespace platform::memory
