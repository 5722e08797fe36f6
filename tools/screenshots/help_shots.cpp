// Pictures of the help, one for each thing that it tells how to do.
#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/preferences.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/windows_of.h"
#include "tools/screenshots/shots.h"
// This header must follow the system's own header, which it needs.
#include <commctrl.h>

namespace desktop {
namespace {

namespace text = language::text::MainForm;

constexpr int kDailyTab = 1;

void Today(Scene& scene) {
  scene.Restart([] {
    StoreWeeksOfUse();
    Store("BAAction", 1U);
    Store("BAAlerts", 1U);
    Store("Transparent2k", 1U);
    Store("AutoStart", 1U);
  });
  const HWND window = scene.Open({text::ConnectionInformations1}, L"T_frmConnInfo");
  ::SendMessageW(FindControl(window, L"PageControl1"), TCM_SETCURFOCUS, kDailyTab, 0);
  Scene::AwaitPainted();
  scene.Save("today", window);
  scene.Close(window);
}

void Page(Scene& scene, PageRow row, const char* name) {
  const HWND window = scene.Open({text::Settings1}, L"T_frmPreferences");
  ChoosePage(window, row);
  Scene::AwaitPainted();
  scene.Save(name, window);
  scene.Close(window);
}

void Limit(Scene& scene) { Page(scene, PageRow::kBandwidthAlert, "limit"); }
void Colours(Scene& scene) { Page(scene, PageRow::kGraphColors, "colours"); }
void Opacity(Scene& scene) { Page(scene, PageRow::kOther, "opacity"); }
void Adapters(Scene& scene) { Page(scene, PageRow::kInterfaces, "adapters"); }
void General(Scene& scene) { Page(scene, PageRow::kGeneral, "general"); }
void Reset(Scene& scene) { Page(scene, PageRow::kResetSettings, "reset"); }

// Shows the menu below the graph.
void Menu(Scene& scene) {
  scene.FillGraph();
  RightClick(MiddleOf(AreaOf(scene.meter().line())));
  OpenMenu menu(scene.meter().program().id());
  menu.Reach(scene.Path({text::GraphDisplayOptions1, text::Transparent1}));
  Scene::AwaitPainted();
  scene.Save("menu", scene.OfAll());
  menu.Leave();
}

}  // namespace

std::span<const Shot> HelpShots() {
  static constexpr Shot kShots[] = {
      {"help-today", Today},     {"help-limit", Limit},       {"help-colours", Colours},
      {"help-opacity", Opacity}, {"help-adapters", Adapters}, {"help-general", General},
      {"help-reset", Reset},     {"help-menu", Menu},
  };
  return kShots;
}

}  // namespace desktop
