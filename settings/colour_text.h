// Colours as the texts that the registry keeps.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/colour.h"

namespace settings {

// Returns a name like "clRed" for one of the sixteen standard colours, a name like "clBtnFace" for
// a system colour, and otherwise "$" and eight hexadecimal digits of 0x00BBGGRR.
[[nodiscard]] std::string ColourText(platform::Colour colour);

// Returns the colour of a text that ColourText writes, with names and digits in any case; also of
// "$" with fewer digits, and of a decimal number of 32 bits. Returns nullopt for any other text.
[[nodiscard]] std::optional<platform::Colour> ParseColour(std::string_view text);

}  // namespace settings
