// Starting with Windows.
#pragma once

#include "settings/store.h"

namespace settings {

// Adds the program to what starts with Windows, or takes it away, then stores "AutoStart". Where
// the system's Run key is missing it stays missing and only "AutoStart" is written. Throws
// std::runtime_error when the system refuses a write; "AutoStart" then keeps its value.
//   program_path  full path of the executable
void SetAutoStart(Store& store, std::string_view program_path, bool on);

}  // namespace settings
