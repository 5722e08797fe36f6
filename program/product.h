// The product's name and version as the user sees them. Every floor may know them.
#pragma once

#include <string_view>

namespace program {

// Also the name of the mutex that keeps a second copy from running.
inline constexpr std::string_view kProductTitle = "Korvane Tremolux";

// Three numbers with points between them; CMakeLists.txt says which.
inline constexpr std::string_view kVersion = TREMOLUX_VERSION;

}  // namespace program
