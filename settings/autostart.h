// Starting with Windows.
#pragma once

#include "settings/store.h"

namespace settings {

// Adds the program to what starts with Windows, or takes it away; "AutoStart" is written by whoever
// asks. Where the system's Run key is missing it stays missing. Throws std::runtime_error when the
// system refuses.
//   program_path  full path of the executable
void StartWithWindows(Store& store, std::string_view program_path, bool on);

}  // namespace settings
