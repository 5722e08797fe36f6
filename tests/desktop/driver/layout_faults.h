// What does not fit in a window, in each language and at each scale.
#pragma once

#include <string>

#include "tests/desktop/driver/win.h"

namespace desktop {

// What is wrong with the layout of a window, in one text that is empty when nothing is: texts that
// need more room than their control has, on hidden pages too; controls that reach out of their
// parent or over a sibling; controls that scroll sideways to show what they have.
[[nodiscard]] std::string LayoutFaults(HWND window);

}  // namespace desktop
