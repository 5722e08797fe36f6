// The product's name as the user sees it.
#pragma once

#include <string_view>

namespace engine {

// Also the name of the mutex that keeps a second copy from running.
inline constexpr std::string_view kProductTitle = "Korvane Tremolux";

}  // namespace engine
