#include "platform/memory/notification_area.h"

#include "platform/text.h"

namespace platform::memory {
namespace {

constexpr std::size_t kHintCharacters = 127;

}  // namespace

class NotificationArea::Icon final : public TrayIcon {
 public:
  Icon(NotificationArea& area, TrayIconEvents& events) : area_(area) { area_.events_ = &events; }
  ~Icon() override {
    area_.events_ = nullptr;
    area_.picture_.reset();
    area_.hint.clear();
  }
  Icon(const Icon&) = delete;
  Icon& operator=(const Icon&) = delete;

  bool SetPicture(const Bitmap& picture) override {
    ++area_.picture_updates;
    if (area_.busy) return false;
    area_.picture_ = std::make_unique<Raster>(picture.Extent(), area_.screen_);
    area_.picture_->Draw(picture, {0, 0});
    return true;
  }
  bool SetPicture(const Bitmap& picture, Colour /*see_through*/) override {
    return SetPicture(picture);
  }
  void SetHint(std::string_view hint) override {
    area_.hint = CutCharacters(hint, kHintCharacters);
  }
  void ShowBalloon(std::string_view title, std::string_view text, BalloonIcon icon,
                   int seconds) override {
    area_.balloons.push_back({std::string(title), std::string(text), icon, seconds});
  }
  [[nodiscard]] int PictureSize() const override { return area_.picture_size; }

 private:
  NotificationArea& area_;
};

std::unique_ptr<TrayIcon> NotificationArea::CreateIcon(TrayIconEvents& events) {
  return std::make_unique<Icon>(*this, events);
}

}  // namespace platform::memory
