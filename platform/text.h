// UTF-8 text: the few operations that the program needs on it. Text above the platform is always
// valid UTF-8; an invalid code unit is replaced by U+FFFD where text enters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// Returns the first `count` characters (code points), or all when there are fewer.
[[nodiscard]] std::string CutCharacters(std::string_view text, std::size_t count);

// Returns the text with A to Z changed to a to z; every other character stays, whatever the
// system's language. Names of stored values are made with this function, so they are the same under
// every locale.
[[nodiscard]] std::string AsciiLower(std::string_view text);

// Returns the text without blanks and control characters (codes 0 to 32) at either end.
[[nodiscard]] std::string Trim(std::string_view text);

// Removes the first line and its end (CR LF, LF or CR) from `rest`, which must not be empty, and
// returns the line. A line end at the end of a text begins no further line.
[[nodiscard]] std::string_view TakeLine(std::string_view& rest);

// Returns `text` with every malformed sequence replaced by U+FFFD.
[[nodiscard]] std::string ValidUtf8(std::string_view text);

// Convert UTF-8 to UTF-16 and back. Malformed input becomes U+FFFD.
[[nodiscard]] std::u16string ToUtf16(std::string_view text);
[[nodiscard]] std::string ToUtf8(std::u16string_view text);

}  // namespace platform
