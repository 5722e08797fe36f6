// The entry point: makes the platform and the meter window and lets the program run.
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "display/unit_BrisantoMain.h"
#include "engine/error_log.h"
#include "engine/program.h"
#include "platform/windows/entry.h"
#include "platform/windows/machine.h"
#include "platform/windows/services/files.h"
#include "platform/windows/services/locale.h"
#include "platform/windows/services/single_instance.h"
#include "preferences/unit_SettingsForm.h"
#include "toolkit/application.h"

namespace {

int Run() {
  platform::windows::Machine machine;
  toolkit::Application app(machine.platform());
  return engine::RunProgram(machine.platform(), [&app] {
    auto meter = std::make_unique<display::T_frmBrisanto>(app);
    meter->SetPreferences(preferences::PreferencesOf(app, meter->Parts()));
    return meter;
  });
}

}  // namespace

int platform::windows::Main() {
  try {
    SingleInstance single_instance;
    return engine::RunOnce(single_instance, &Run);
  } catch (const std::exception& error) {
    // The system gave no window to start with; the log is all that can tell.
    Files files;
    Locale locale;
    std::vector<std::string> lines;
    engine::ErrorLog(files, locale, lines).Append(error.what());
    return 1;
  }
}
