// Asks the user for a colour.
#pragma once

#include <optional>
#include <string>

#include "platform/colour.h"

namespace toolkit {

class Control;

struct ColourPopupTexts {
  std::string caption;
  std::string more;  // text of the button that opens the system's own dialog
  std::string ok;
  std::string cancel;
};

// Shows a palette below `anchor`, with `present` as the chosen colour, and the system's own dialog
// behind a button. Returns the colour that the user has confirmed, or nullopt when the user
// cancels, the program ends or a popup is open already. A system colour that is confirmed unchanged
// stays a system colour.
[[nodiscard]] std::optional<platform::Colour> ChooseColour(Control& anchor,
                                                           const ColourPopupTexts& texts,
                                                           platform::Colour present);

}  // namespace toolkit
