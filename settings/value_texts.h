// Byte counters and colours as the texts that the registry keeps.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/colour.h"

namespace settings {

// Thrown when a stored text that should be a number is none. Its message is like "'abc' is not a
// valid integer value"; of a longer text it quotes the first 100 characters and states the length.
class ConversionError : public std::runtime_error {
 public:
  explicit ConversionError(std::string_view text);
};

// Returns the number in a text of an optional sign and decimal digits that fit into 64 bits. Throws
// ConversionError for any other text, also for an empty text and for one with blanks.
[[nodiscard]] std::int64_t ParseCounter(std::string_view text);

// Returns the decimal digits of the absolute value.
[[nodiscard]] std::string CounterText(std::int64_t value);

// Returns a name like "clRed" for one of the sixteen standard colours, a name like "clBtnFace" for
// a system colour, and otherwise "$" and eight hexadecimal digits of 0x00BBGGRR.
[[nodiscard]] std::string ColourText(platform::Colour colour);

// Returns the colour of a text that ColourText writes, with names and digits in any case; also of
// "$" with fewer digits, and of a decimal number of 32 bits. Returns nullopt for any other text.
[[nodiscard]] std::optional<platform::Colour> ParseColour(std::string_view text);

}  // namespace settings
