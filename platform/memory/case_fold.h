// Names as the system compares them.
#pragma once

#include <string>
#include <string_view>

namespace platform::memory {

// The form in which two names are equal when the system takes them for the same: keys, values and
// files, whose case is kept but not told apart. Covers Latin-1, Greek and Cyrillic.
[[nodiscard]] std::string FoldCase(std::string_view name);

}  // namespace platform::memory
