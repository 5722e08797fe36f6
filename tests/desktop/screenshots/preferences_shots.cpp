// The pages of the preferences, and what they open.
#include "tests/desktop/driver/windows_of.h"
#include "tests/desktop/screenshots/shots.h"
// Behind the system's own header, which it needs.
#include <commctrl.h>

namespace desktop {
namespace {

namespace text = settings::text::MainForm;

// In the order of the tree; a heading has no picture.
constexpr const char* kPages[] = {
    "general",    "", "graph-colors", "graph-grids",     "graph-other", "",      "text-colors",
    "text-other", "", "notification", "bandwidth-alert", "interfaces",  "admin", "other"};
constexpr int kResetSettings = 17;

void ChooseRow(HWND window, int row) {
  const HWND tree = FindControl(window, L"TreeItems");
  LRESULT item = ::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
  for (; row > 0; --row) item = ::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, item);
  ::SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, item);
  Scene::AwaitPainted();
}

HWND OpenPreferences(Scene& scene) { return scene.Open({text::Settings1}, L"T_frmPreferences"); }

void Pages(Scene& scene) {
  const HWND window = OpenPreferences(scene);
  int row = 0;
  for (const char* page : kPages) {
    ChooseRow(window, row++);
    if (*page != 0) scene.Save(std::string("preferences-") + page, Scene::Of(window));
  }
  ChooseRow(window, kResetSettings);
  scene.Save("preferences-reset", Scene::Of(window));
  scene.Close(window);
}

void ColorPopup(Scene& scene) {
  const HWND window = OpenPreferences(scene);
  ChooseRow(window, 2);
  scene.Press(window, L"DownloadColor");
  const HWND popup = scene.AwaitWindow(L"ColourPopup");
  scene.Save("color-popup", Scene::Of(popup));
  scene.Press(popup, L"btnColorCancel");
  scene.Close(window);
}

void TitleEditor(Scene& scene) {
  const HWND window = OpenPreferences(scene);
  ChooseRow(window, 7);
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
