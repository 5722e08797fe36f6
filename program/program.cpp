#include "program/program.h"

#include <stdexcept>

#include "preferences/unit_SettingsForm.h"
#include "program/product.h"
#include "settings/first_start.h"
#include "settings/store.h"

namespace program {
namespace {

// Sets the application's title before the first window is made.
platform::Platform& Titled(platform::Platform& platform) {
  platform.windowing.SetApplicationTitle(kProductTitle);
  return platform;
}

}  // namespace

int RunOnce(platform::SingleInstance& single_instance, const std::function<int()>& run) {
  return single_instance.ClaimFirst(kProductTitle) ? run() : 0;
}

Program::Program(platform::Platform& platform) : app_(Titled(platform)), meter_(app_) {
  meter_.SetPreferences(preferences::PreferencesOf(app_, meter_.Parts()));
  const platform::DateTime now = platform.clock.Now();
  settings::Store store(platform.registry, platform.files);
  settings::CreateMissingValues(store, platform::DateOf(now));
  // Said once: a write that is refused leaves no line of its own, or there would be some each
  // second.
  app_.Guard([&store] {
    if (!store.Writable()) throw std::runtime_error("the settings in the registry are read-only");
  });
  meter_.Traffic().RestartRun(now);
  // The window has just set the cap from the stored scale. A new run is uncapped nevertheless,
  // until the user picks a scale or the window is initialised again.
  meter_.Traffic().SpeedCap = 0;
}

int Program::Run() {
  app_.Platform().message_loop.RunUntil([] { return false; });
  return 0;
}

}  // namespace program
