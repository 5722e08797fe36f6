// The list of pictures. For a new window, add a function that drives the scene to it, saves the
// picture and leaves the program as it was, and a row in the table of its subsystem.
#pragma once

#include <span>

#include "tools/screenshots/scene.h"

namespace desktop {

struct Shot {
  const char* name;
  void (*take)(Scene& scene);
};

// Stores some weeks of use and a limit of 20 gigabytes a month that is mostly used.
void StoreWeeksOfUse();

[[nodiscard]] std::span<const Shot> MeterShots();
[[nodiscard]] std::span<const Shot> AlertShots();
[[nodiscard]] std::span<const Shot> StatisticsShots();
[[nodiscard]] std::span<const Shot> ExitShots();
[[nodiscard]] std::span<const Shot> PreferencesShots();
// Those of the help, which are taken in every language.
[[nodiscard]] std::span<const Shot> HelpShots();

}  // namespace desktop
