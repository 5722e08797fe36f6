// Text files that users edit with whatever they have.
#pragma once

#include <string>
#include <string_view>

#include "platform/locale.h"

namespace settings {

// The text in a file's bytes: UTF-8 or UTF-16 with a byte order mark; without one UTF-8 or else the
// system's code page. A file that ends in the middle of a character ends with U+FFFD. Bytes that
// are no text at all give something that is valid UTF-8, with NUL characters in it where they had
// some.
[[nodiscard]] std::string DecodeTextFile(std::string_view bytes, platform::Locale& locale);

}  // namespace settings
