// Texts that do not fit, in each language.
#pragma once

#include <string>

#include "tests/desktop/driver/win.h"

namespace desktop {

// The texts of buttons, boxes and labels of a window, hidden ones too, that need more room than
// their control has; in one text, empty when there are none. `font_height` is that of the window's
// font in pixels.
[[nodiscard]] std::string CutTexts(HWND window, LONG font_height);

}  // namespace desktop
