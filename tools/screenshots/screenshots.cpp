// Writes pictures of the windows of the real program.
//
//   screenshots FOLDER [NAME...]     Tremolux.exe lies in the current folder; with names only the
//                                    shots whose names begin so
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/program.h"
#include "tools/screenshots/shots.h"

namespace desktop {
namespace {

struct Tour {
  const char* language;
  const char* suffix;
};

constexpr Tour kTours[] = {{"English", ""}, {"German", "-german"}};

std::vector<Shot> ShotsOf(const Tour& tour, const std::vector<std::string>& wanted) {
  std::vector<Shot> shots;
  for (const auto subsystem :
       {MeterShots(), AlertShots(), StatisticsShots(), ExitShots(), PreferencesShots()}) {
    for (const Shot& shot : subsystem) {
      const std::string_view name = shot.name;
      const bool is_wanted = wanted.empty() || std::any_of(wanted.begin(), wanted.end(),
                                                           [&](const std::string& begin) {
                                                             return name.starts_with(begin);
                                                           });
      const bool in_language = &tour == kTours || shot.languages == Languages::kEnglishAndGerman;
      if (is_wanted && in_language) shots.push_back(shot);
    }
  }
  return shots;
}

// A failure leaves a picture of the screen beside this program.
void Take(const Shot& shot, Scene& scene) {
  try {
    shot.take(scene);
  } catch (const std::exception&) {
    SavePng(TakePictureOfScreen(), OwnFolder() + L"screenshots_failed.png");
    throw;
  }
}

void TakeAll(const std::wstring& folder, const std::vector<std::string>& wanted) {
  if (ProgramRuns()) throw std::runtime_error("end the program that is running");
  for (const Tour& tour : kTours) {
    const std::vector<Shot> shots = ShotsOf(tour, wanted);
    if (shots.empty()) continue;
    Scene scene(tour.language, {folder, tour.suffix});
    for (const Shot& shot : shots) Take(shot, scene);
  }
}

}  // namespace
}  // namespace desktop

int wmain(int argc, wchar_t** argv) {
  if (argc < 2) {
    std::printf("usage: screenshots FOLDER [NAME...]\n");
    return 2;
  }
  try {
    ::SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    std::vector<std::string> wanted;
    for (int at = 2; at < argc; ++at) wanted.push_back(platform::windows::FromWide(argv[at]));
    desktop::TakeAll(argv[1], wanted);
    return 0;
  } catch (const std::exception& error) {
    std::printf("screenshots: %s\n", error.what());
    return 1;
  }
}
