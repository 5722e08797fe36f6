// The program's icon in the notification area: four activity pictures, or a live histogram.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "alerts/reactions.h"
#include "display/tray/histogram.h"
#include "display/tray/pictures.h"
#include "engine/traffic_state.h"
#include "platform/notification_area.h"
#include "settings/store.h"

namespace toolkit {
class Application;
}

namespace display {

class TrayIcon final : public alerts::Balloons, private platform::TrayIconEvents {
 public:
  // Both arguments outlive the icon, which appears with its first picture.
  TrayIcon(toolkit::Application& app, settings::Store& store);
  ~TrayIcon() override;

  std::function<void()> OnClick;
  std::function<void(platform::Point screen)> OnMenu;

  // Loads the activity pictures named by "TrayIconFile". A file that is not there or no such bitmap
  // is replaced by the one that comes with the program, here and not in the store.
  void LoadPictures();

  // Shows the picture of a start, by "IconType": idle, or an empty histogram. What the histogram
  // holds comes back with the next scan.
  void ShowStart();

  // Shows another "IconType", which is stored next: 0 the activity pictures, idle, 1 the histogram,
  // else an empty one.
  void ChangeKind(std::int64_t type);
  // Shows the histogram in other colours, which are stored next.
  void ChangeColours(platform::Colour receiving, platform::Colour sending);
  // Shows the pictures of another "TrayIconFile", which is stored next.
  void ChangePictures(const std::string& path);

  // Shows the picture of a scan: with "IconType" 0 its activity, with 1 the histogram; another
  // value leaves the icon as it is. The histogram moves on only while it is shown.
  void ShowScan(const engine::ScanAmounts& scan);

  // Empties the histogram and shows it.
  void Clear();

  void SetHint(std::string_view hint) { icon_->SetHint(hint); }

  void ShowBalloon(std::string_view title, std::string_view text, platform::BalloonIcon icon,
                   int seconds) override {
    icon_->ShowBalloon(title, text, icon, seconds);
  }

 private:
  void OnTrayClick() override;
  void OnTrayMenu(platform::Point screen) override;

  // Lets another kind count from here on and loads its pictures.
  void TakeKind(std::int64_t type);
  void LoadPictures(const std::string& path);
  void ShowActivity(TrayActivity activity);
  void ShowHistogram(const TrayHistogram& histogram);
  void DrawHistogram(const TrayHistogram& histogram, platform::Colour receiving,
                     platform::Colour sending);
  // Returns false when the shell has not taken the picture.
  [[nodiscard]] bool ShowEnlarged(const platform::Bitmap& picture);

  toolkit::Application& app_;
  settings::Store& store_;
  TrayPictures pictures_;
  TrayHistogram histogram_;
  std::unique_ptr<platform::Bitmap> drawing_;   // 16 x 16
  std::unique_ptr<platform::Bitmap> enlarged_;  // as large as the area shows, when that is more
  std::int64_t kind_ = -1;                      // the "IconType" that it shows
  TrayHistogram shown_histogram_;
  // What the icon shows; nullopt while it is the histogram or the pictures were loaded anew.
  std::optional<TrayActivity> shown_activity_;
  int activity_size_ = 0;  // the side of that picture; 0 when the shell has not taken it
  // The histogram that the icon shows, and the side of its picture; 0 while it shows none or the
  // shell has not taken it.
  TrayHistogram::Half shown_upper_;
  TrayHistogram::Half shown_lower_;
  int shown_size_ = 0;
  std::unique_ptr<platform::TrayIcon> icon_;
};

}  // namespace display
