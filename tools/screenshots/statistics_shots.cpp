// Pictures of the statistics of the machine and of an adapter, one tab beside the other.
#include <vector>

#include "platform/text.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/windows_of.h"
#include "tools/screenshots/collage.h"
#include "tools/screenshots/shots.h"
// This header must follow the system's own header, which it needs.
#include <commctrl.h>

namespace desktop {
namespace {

namespace text = language::text::MainForm;

void SaveAllTabs(Scene& scene, const char* name, HWND window) {
  const HWND tabs = FindControl(window, L"PageControl1");
  const auto count = static_cast<int>(::SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
  scene.CheckLayout(name, window);  // all tabs are there
  std::vector<Picture> pictures;
  for (int tab = 0; tab < count; ++tab) {
    ::SendMessageW(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    Scene::AwaitPainted();
    pictures.push_back(Scene::Of(window));
  }
  scene.Save(name, Beside(pictures));
}

void DlUlStatistics(Scene& scene) {
  scene.Restart(StoreWeeksOfUse);
  const HWND window = scene.Open({text::ConnectionInformations1}, L"T_frmConnInfo");
  SaveAllTabs(scene, "dl-ul-statistics", window);
  scene.Close(window);
}

void AdapterStatistics(Scene& scene) {
  {
    OpenMenu menu = scene.meter().Menu();
    MenuPath path = scene.Path({text::conenctionMonitor1});
    for (const MenuItem& item : menu.Items(path)) {
      if (platform::AsciiLower(item.text) != scene.waves().adapter()) continue;
      path.push_back(item.text);
      break;
    }
    menu.Choose(path);
  }
  const HWND window = scene.AwaitWindow(L"T_frmSpecificConnInfo");
  SaveAllTabs(scene, "adapter-statistics", window);
  scene.Close(window);
}

}  // namespace

void StoreWeeksOfUse() {
  Store("CurrentDayTotalDL", std::string("734003200"));
  Store("CurrentDayTotalUL", std::string("52428800"));
  Store("CurrentWeekTotalDL", std::string("4509715660"));
  Store("CurrentWeekTotalUL", std::string("322122547"));
  Store("CurrentMonthTotalDL", std::string("15032385536"));
  Store("CurrentMonthTotalUL", std::string("1288490188"));
  Store("MoreThan", 20U);
  Store("AlertsMoreThan", 2U);
  Store("BADayWeekMonth", 2U);
  Store("baDownload", 1U);
  Store("baUpload", 1U);
}

std::span<const Shot> StatisticsShots() {
  static constexpr Shot kShots[] = {
      {"dl-ul-statistics", DlUlStatistics},
      {"adapter-statistics", AdapterStatistics},
  };
  return kShots;
}

}  // namespace desktop
