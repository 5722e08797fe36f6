#include "engine/program.h"

#include "engine/product.h"
#include "settings/first_start.h"
#include "settings/store.h"

namespace engine {

int RunOnce(platform::SingleInstance& single_instance, const std::function<int()>& run) {
  return single_instance.ClaimFirst(kProductTitle) ? run() : 0;
}

int RunProgram(platform::Platform& platform,
               const std::function<std::unique_ptr<MeterWindow>()>& make_window) {
  platform.windowing.SetApplicationTitle(kProductTitle);
  const std::unique_ptr<MeterWindow> window = make_window();
  const platform::DateTime now = platform.clock.Now();
  settings::Store store(platform.registry, platform.files);
  settings::CreateMissingValues(store, platform::DateOf(now));
  window->Traffic().RestartRun(now);
  // The window has just set the cap from the stored scale. A fresh run is uncapped all the same,
  // until the user picks a scale or the window is initialised again.
  window->Traffic().SpeedCap = 0;
  platform.message_loop.RunUntil([] { return false; });
  return 0;
}

}  // namespace engine
