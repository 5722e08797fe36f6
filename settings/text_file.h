// Reads text files that users edit with any editor.
#pragma once

#include <string>
#include <string_view>

#include "platform/locale.h"

namespace settings {

// Returns the text in a file's bytes as UTF-8. The bytes are UTF-8 or UTF-16 with a byte order
// mark, or several of them; without a mark they are UTF-8 or else in the system's code page. A file
// that ends in the middle of a character gives U+FFFD at its end. Bytes that are no text at all
// still give valid UTF-8, with NUL characters where the bytes had them.
[[nodiscard]] std::string DecodeTextFile(std::string_view bytes, platform::Locale& locale);

}  // namespace settings
