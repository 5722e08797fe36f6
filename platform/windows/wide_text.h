// Converts UTF-8 to the system's wide text and back.
#pragma once

#include <string>
#include <string_view>

namespace platform::windows {

// Malformed input becomes U+FFFD, in both directions.
[[nodiscard]] std::wstring ToWide(std::string_view text);
[[nodiscard]] std::string FromWide(std::wstring_view text);

}  // namespace platform::windows
