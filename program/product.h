// The product's name and version as the user sees them. Every floor may know them.
#pragma once

#include <string_view>

namespace program {

// This is also the name of the mutex that keeps a second copy from running.
inline constexpr std::string_view kProductTitle = "Korvane Tremolux";

// The same version stands in CMakeLists.txt and in the resources of the executable; a test compares
// them.
inline constexpr std::string_view kVersion = "1.0.0";

}  // namespace program
