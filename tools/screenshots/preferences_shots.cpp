// Pictures of the pages of the preferences and of the windows that they open.
#include "tests/desktop/driver/preferences.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/windows_of.h"
#include "tools/screenshots/shots.h"

namespace desktop {
namespace {

namespace text = language::text::MainForm;

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

// Stores the sound paths of an installation, wherever the pictures are taken.
void StoreInstalledSounds() {
  const std::string folder = "C:\\Program Files\\Tremolux\\";
  Store("LessPlayWavFile", folder + "Warning.wav");
  Store("TickerWav", folder + "ticking.wav");
}

void Pages(Scene& scene) {
  StoreInstalledSounds();
  const HWND window = OpenPreferences(scene);
  scene.CheckLayout("preferences", window);  // all pages are there
  for (const auto& [row, name] : kPages) {
    Turn(window, row);
    scene.Save(std::string("preferences-") + name, Scene::Of(window));
  }
  scene.Close(window);
}

// Shows a list that has dropped down over its page.
void OpenList(Scene& scene) {
  const HWND window = OpenPreferences(scene);
  Turn(window, PageRow::kGraphOther);
  const HWND list = FindControl(window, L"ScaleCombo");
  ::SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  Scene::AwaitPainted();
  scene.Save("preferences-list", scene.OfAll());
  ::SendMessageW(list, CB_SHOWDROPDOWN, FALSE, 0);
  scene.Close(window);
}

// A window that a page opens.
struct Opened {
  PageRow page;
  const wchar_t* by;     // the control that opens it
  const wchar_t* named;  // the class of the window
  const wchar_t* closed_by;
  const char* picture;
};

void TakeOpened(Scene& scene, const Opened& opened) {
  const HWND window = OpenPreferences(scene);
  Turn(window, opened.page);
  scene.Press(window, opened.by);
  const HWND top = scene.AwaitWindow(opened.named);
  scene.Save(opened.picture, top);
  scene.Press(top, opened.closed_by);
  scene.Close(window);
}

void ColorPopup(Scene& scene) {
  TakeOpened(scene, {PageRow::kGraphColors, L"DownloadColor", L"ColourPopup", L"btnColorCancel",
                     "color-popup"});
}

void TitleEditor(Scene& scene) {
  TakeOpened(scene,
             {PageRow::kTextOther, L"DefineButton", L"T_frmAddTitles", L"OkBtn", "window-titles"});
}

}  // namespace

std::span<const Shot> PreferencesShots() {
  static constexpr Shot kShots[] = {
      {"preferences", Pages},
      {"preferences-list", OpenList},
      {"color-popup", ColorPopup},
      {"window-titles", TitleEditor},
  };
  return kShots;
}

}  // namespace desktop
