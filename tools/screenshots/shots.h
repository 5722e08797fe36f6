// What there are pictures of. A new window is a function that drives the scene there, saves what is
// seen and leaves the program as it was, and a row of the table of its subsystem.
#pragma once

#include <span>

#include "tools/screenshots/scene.h"

namespace desktop {

enum class Languages { kEnglish, kEnglishAndGerman };

struct Shot {
  const char* name;
  void (*take)(Scene& scene);
  Languages languages = Languages::kEnglishAndGerman;
};

[[nodiscard]] std::span<const Shot> MeterShots();
[[nodiscard]] std::span<const Shot> AlertShots();
[[nodiscard]] std::span<const Shot> StatisticsShots();
[[nodiscard]] std::span<const Shot> ExitShots();
[[nodiscard]] std::span<const Shot> PreferencesShots();

}  // namespace desktop
