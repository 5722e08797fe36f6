// The clipboard, as another program reads it.
#pragma once

#include <string>

namespace desktop {

// Its text; empty when it has none. Waits until nobody keeps it open.
[[nodiscard]] std::string ClipboardText();
void ClearClipboard();

}  // namespace desktop
