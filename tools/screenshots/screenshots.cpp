// Writes pictures of the windows of the real program, for the documentation or for the help.
//
//   screenshots docs|help LANGUAGE FOLDER [NAME...]
//
// Tremolux.exe lies in the current folder. With names it takes only the shots whose names begin so.
// It fails when something in a window does not fit.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/program.h"
#include "tools/screenshots/shots.h"

namespace desktop {
namespace {

constexpr std::span<const Shot> (*kDocs[])() = {MeterShots, AlertShots, StatisticsShots, ExitShots,
                                                PreferencesShots};
constexpr std::span<const Shot> (*kHelp[])() = {HelpShots};

using Subsystems = std::span<std::span<const Shot> (*const)()>;

bool IsWanted(std::string_view name, const std::vector<std::string>& wanted) {
  return wanted.empty() || std::any_of(wanted.begin(), wanted.end(), [&](const std::string& begin) {
           return name.starts_with(begin);
         });
}

std::vector<Shot> ShotsOf(Subsystems subsystems, const std::vector<std::string>& wanted) {
  std::vector<Shot> shots;
  for (const auto subsystem : subsystems) {
    for (const Shot& shot : subsystem()) {
      if (IsWanted(shot.name, wanted)) shots.push_back(shot);
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

// Returns whether everything fits that the windows show.
bool TakeAll(Subsystems subsystems, const std::string& language, const std::wstring& folder,
             const std::vector<std::string>& wanted) {
  if (ProgramRuns()) throw std::runtime_error("end the program that is running");
  const std::vector<Shot> shots = ShotsOf(subsystems, wanted);
  if (shots.empty()) return true;
  Scene scene(language, folder);
  for (const Shot& shot : shots) Take(shot, scene);
  return scene.Fits();
}

}  // namespace
}  // namespace desktop

int wmain(int argc, wchar_t** argv) {
  if (argc < 4) {
    std::printf("usage: screenshots docs|help LANGUAGE FOLDER [NAME...]\n");
    return 2;
  }
  try {
    ::SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    const std::vector<std::wstring> words(argv + 1, argv + argc);
    std::vector<std::string> wanted;
    for (std::size_t at = 3; at < words.size(); ++at) {
      wanted.push_back(platform::windows::FromWide(words[at]));
    }
    const auto subsystems = words[0] == L"help" ? desktop::Subsystems(desktop::kHelp)
                                                : desktop::Subsystems(desktop::kDocs);
    const std::string language = platform::windows::FromWide(words[1]);
    return desktop::TakeAll(subsystems, language, words[2], wanted) ? 0 : 1;
  } catch (const std::exception& error) {
    std::printf("screenshots: %s\n", error.what());
    return 1;
  }
}
