// The entry point: makes the platform and lets the program run.
#include <exception>
#include <string>
#include <vector>

#include "engine/error_log.h"
#include "platform/windows/machine.h"
#include "platform/windows/services/services.h"
#include "program/program.h"

namespace {

int Run() {
  platform::windows::Machine machine;
  return program::Program(machine.platform()).Run();
}

}  // namespace

int platform::windows::Main() {
  try {
    SingleInstance single_instance;
    return program::RunOnce(single_instance, &Run);
  } catch (const std::exception& error) {
    // The system refused the first window, so the error can only be written to the log.
    Files files;
    Locale locale;
    std::vector<std::string> lines;
    engine::ErrorLog(files, locale, lines).Append(error.what());
    return 1;
  }
}
