// A notification area that tests look at and click into.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/memory/canvas.h"
#include "platform/notification_area.h"
#include "platform/text.h"

namespace platform::memory {

struct Balloon {
  std::string title, text;
  BalloonIcon icon = BalloonIcon::kNone;
  int seconds = 0;
};

class NotificationArea final : public platform::NotificationArea {
 public:
  explicit NotificationArea(Screen& screen) : screen_(screen) {}

  std::unique_ptr<TrayIcon> CreateIcon(TrayIconEvents& events) override {
    return std::make_unique<Icon>(*this, events);
  }

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
  struct Icon final : TrayIcon {
    Icon(NotificationArea& its_area, TrayIconEvents& events) : area(its_area) {
      area.events_ = &events;
    }
    ~Icon() override {
      area.events_ = nullptr;
      area.picture_.reset();
      area.hint.clear();
    }
    Icon(const Icon&) = delete;
    Icon& operator=(const Icon&) = delete;

    bool SetPicture(const Bitmap& picture) override {
      ++area.picture_updates;
      if (area.busy) return false;
      area.picture_ = std::make_unique<Raster>(picture.Extent(), area.screen_);
      area.picture_->Draw(picture, {0, 0});
      return true;
    }
    bool SetPicture(const Bitmap& picture, Colour /*see_through*/) override {
      return SetPicture(picture);
    }
    void SetHint(std::string_view hint) override {
      constexpr std::size_t kLongest = 127;  // characters
      area.hint = CutCharacters(hint, kLongest);
    }
    void ShowBalloon(std::string_view title, std::string_view text, BalloonIcon icon,
                     int seconds) override {
      area.balloons.push_back({std::string(title), std::string(text), icon, seconds});
    }
    int PictureSize() const override { return area.picture_size; }

    NotificationArea& area;
  };

  Screen& screen_;
  TrayIconEvents* events_ = nullptr;
  std::unique_ptr<Raster> picture_;
};

}  // namespace platform::memory
