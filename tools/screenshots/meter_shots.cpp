// Pictures of the meter window, its menu and its icon.
#include <vector>

#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/windows_of.h"
#include "tools/screenshots/collage.h"
#include "tools/screenshots/shots.h"

namespace desktop {
namespace {

namespace text = language::text::MainForm;

void MeterInItsModes(Scene& scene) {
  struct Mode {
    language::TextEntry item;
    const char* name;
  };
  static constexpr Mode kModes[] = {
      {text::mnuGraphMode, "meter-graph"},
      {text::mnuTextMode, "meter-numeric"},
      {text::mnuTextandGraph, "meter-graph-and-numeric"},
  };
  scene.FillGraph();
  for (const Mode& mode : kModes) {
    scene.Choose({text::GraphDisplayOptions1, mode.item});
    Scene::AwaitPainted();
    scene.Save(mode.name, Scene::Of(scene.meter().window()));
  }
}

// Shows the figures of the present, the average and the maxima in the narrowest window, in bytes
// and in bits.
void Narrow(Scene& scene) {
  constexpr LONG kWidth = 150;
  constexpr LONG kHeight = 60;
  std::vector<Picture> pictures;
  for (const std::uint32_t unit : {0U, 1U}) {
    scene.Restart([&] {
      Store("ScaleUnit", unit);
      for (const char* const mode : {"SOM1", "SOM2", "SOM3"}) Store(mode, 1U);
    });
    const HWND window = scene.meter().window();
    scene.Choose({text::GraphDisplayOptions1, text::mnuTextMode});
    ::SetWindowPos(window, nullptr, 0, 0, scene.meter().Scaled(kWidth),
                   scene.meter().Scaled(kHeight), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Scene::AwaitPainted();
    pictures.push_back(Scene::Of(window));
  }
  scene.Save("meter-narrow", Beside(pictures));
  scene.Restart([] { Store("ScaleUnit", 0U); });
  scene.Choose({text::GraphDisplayOptions1, text::mnuTextandGraph});
}

// Shows the menu beside the meter that opened it, and the hint of an item.
void MenuOfTheMeter(Scene& scene) {
  OpenMenu menu = scene.meter().Menu();
  // The item that has a hint.
  const POINT hinted = menu.Reach(scene.Path({text::GraphDisplayOptions1, text::Transparent1}));
  Scene::AwaitPainted();
  scene.Save("menu", scene.OfAll());
  MoveMouse(hinted);
  Scene::AwaitPainted();
  scene.Save("menu-hint", scene.OfAll());
  menu.Leave();
}

// The icon shows the last 14 seconds.
void Histogram(Scene& scene) {
  AwaitScans(15);
  scene.Save("tray-histogram", Enlarged(TakePicture(scene.meter().TrayArea()), 8));
}

// Shows the four pictures: idle, upload, download and both.
void ActivityPictures(Scene& scene) {
  scene.Restart([] { Store("IconType", 0U); });
  std::vector<Picture> pictures;
  for (const Flow flow : {Flow::kNothing, Flow::kUpload, Flow::kDownload, Flow::kBoth}) {
    scene.waves().Set(flow);
    AwaitScans(4);
    pictures.push_back(TakePicture(scene.meter().TrayArea()));
  }
  scene.Save("tray-pictures", Enlarged(Beside(pictures), 8));
  scene.Restart([] { Store("IconType", 1U); });
}

}  // namespace

std::span<const Shot> MeterShots() {
  static constexpr Shot kShots[] = {
      {"meter", MeterInItsModes},
      {"menu", MenuOfTheMeter},
      {"meter-narrow", Narrow},
      {"tray-histogram", Histogram},
      {"tray-pictures", ActivityPictures},
  };
  return kShots;
}

}  // namespace desktop
