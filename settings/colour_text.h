// Colours as the texts that the registry keeps.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/colour.h"

namespace settings {

// "clRed" for one of the sixteen standard colours, "clBtnFace" for a system colour, otherwise "$"
// and eight hexadecimal digits of 0x00BBGGRR.
[[nodiscard]] std::string ColourText(platform::Colour colour);

// What ColourText writes, names and digits in any case, "$" with fewer digits, or a decimal number
// of 32 bits. Nothing for any other text.
[[nodiscard]] std::optional<platform::Colour> ParseColour(std::string_view text);

}  // namespace settings
