// Pictures of what the program says when one of the user's rules holds.
#include "tests/desktop/driver/registry.h"
#include "tools/screenshots/shots.h"

namespace desktop {
namespace {

constexpr std::uint32_t kShowMessage = 1;

void NotificationBalloon(Scene& scene) {
  Store("MoreDownloaded", 1U);
  Store("MoreByteWere", 1U);
  Store("MoreNotSecs", 6U);  // each new balloon takes the last one away before it is seen
  Store("MoreAction", kShowMessage);
  Store("MoreDisplayMessage", std::string("Backup is running"));
  Store("NotificationsActive", 1U);
  const HWND balloon = scene.AwaitBalloon();
  Store("NotificationsActive", 0U);
  scene.Save("notification-balloon", Scene::Of(balloon));
  scene.CloseBalloon(balloon);
}

// A little more than all of a limit of 2 gigabytes a day is used.
void BandwidthAlert(Scene& scene) {
  scene.Restart([] {
    Store("baDownload", 1U);
    Store("baUpload", 1U);
    Store("AlertsMoreThan", 2U);
    Store("MoreThan", 2U);
    Store("BAAction", kShowMessage);
    Store("BAMessage", std::string("Think of the bill"));
    Store("CurrentDayTotalDL", std::string("1932735283"));
    Store("CurrentDayTotalUL", std::string("257698037"));
    Store("BAAlerts", 1U);
  });
  const HWND alert = scene.AwaitWindow(L"T_frmBandWidthAlert");
  scene.Save("bandwidth-alert", alert);
  const HWND balloon = scene.AwaitBalloon();
  scene.Save("bandwidth-balloon", Scene::Of(balloon));
  scene.CloseBalloon(balloon);
  scene.Press(alert, L"btnDetails");
  Scene::AwaitPainted();
  scene.Save("bandwidth-alert-details", alert);
  scene.Press(alert, L"OkBtn");
}

}  // namespace

std::span<const Shot> AlertShots() {
  static constexpr Shot kShots[] = {
      {"notification", NotificationBalloon},
      {"bandwidth", BandwidthAlert},
  };
  return kShots;
}

}  // namespace desktop
