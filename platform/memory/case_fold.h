// Folds names so that they compare as the system compares them.
#pragma once

#include <string>
#include <string_view>

namespace platform::memory {

// Returns a form of the name that is equal for two names that the system takes for the same: it
// keeps the case of keys, values and files but does not tell it apart. Covers Latin-1, Greek and
// Cyrillic.
[[nodiscard]] std::string FoldCase(std::string_view name);

}  // namespace platform::memory
