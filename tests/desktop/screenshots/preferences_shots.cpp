// The pages of the preferences, and what they open.
#include "tests/desktop/driver/preferences.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/screenshots/shots.h"

namespace desktop {
namespace {

namespace text = settings::text::MainForm;

struct PagePicture {
  PageRow row;
  const char* name;
};

constexpr PagePicture kPages[] = {
    {PageRow::kGeneral, "general"},
    {PageRow::kGraphColors, "graph-colors"},
    {PageRow::kGraphGrids, "graph-grids"},
    {PageRow::kGraphOther, "graph-other"},
    {PageRow::kTextColors, "text-colors"},
    {PageRow::kTextOther, "text-other"},
    {PageRow::kNotification, "notification"},
    {PageRow::kBandwidthAlert, "bandwidth-alert"},
    {PageRow::kInterfaces, "interfaces"},
    {PageRow::kAdmin, "admin"},
    {PageRow::kOther, "other"},
    {PageRow::kResetSettings, "reset"},
};

void Turn(HWND window, PageRow row) {
  ChoosePage(window, row);
  Scene::AwaitPainted();
}

HWND OpenPreferences(Scene& scene) { return scene.Open({text::Settings1}, L"T_frmPreferences"); }

// Sounds as after an installation, wherever the pictures are taken.
void StoreInstalledSounds() {
  const std::string folder = "C:\\Program Files\\Tremolux\\";
  Store("LessPlayWavFile", folder + "Warning.wav");
  Store("TickerWav", folder + "ticking.wav");
}

void Pages(Scene& scene) {
  StoreInstalledSounds();
  const HWND window = OpenPreferences(scene);
  for (const auto& [row, name] : kPages) {
    Turn(window, row);
    scene.Save(std::string("preferences-") + name, Scene::Of(window));
  }
  scene.Close(window);
}

void ColorPopup(Scene& scene) {
  const HWND window = OpenPreferences(scene);
  Turn(window, PageRow::kGraphColors);
  scene.Press(window, L"DownloadColor");
  const HWND popup = scene.AwaitWindow(L"ColourPopup");
  scene.Save("color-popup", Scene::Of(popup));
  scene.Press(popup, L"btnColorCancel");
  scene.Close(window);
}

void TitleEditor(Scene& scene) {
  const HWND window = OpenPreferences(scene);
  Turn(window, PageRow::kTextOther);
  scene.Press(window, L"DefineButton");
  const HWND editor = scene.AwaitWindow(L"T_frmAddTitles");
  scene.Save("window-titles", Scene::Of(editor));
  scene.Press(editor, L"OkBtn");
  scene.Close(window);
}

}  // namespace

std::span<const Shot> PreferencesShots() {
  static constexpr Shot kShots[] = {
      {"preferences", Pages},
      {"color-popup", ColorPopup},
      {"window-titles", TitleEditor},
  };
  return kShots;
}

}  // namespace desktop
