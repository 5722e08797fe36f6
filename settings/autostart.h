// Starts the program together with Windows.
#pragma once

#include "settings/store.h"

namespace settings {

// Adds the program to the system's Run key, or removes it from there; the caller writes
// "AutoStart". When the Run key is missing, it is not created. Throws std::runtime_error when the
// system refuses.
//   program_path  full path of the executable
void StartWithWindows(Store& store, std::string_view program_path, bool on);

}  // namespace settings
