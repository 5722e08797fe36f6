// Where windows may stand.
#pragma once

#include <vector>

#include "platform/geometry.h"
#include "platform/screen.h"

namespace toolkit {

// `bounds` moved, not sized, so that it lies inside the work area of its monitor; one that is
// larger starts at the upper left corner.
[[nodiscard]] platform::Rect BroughtIntoView(const platform::Rect& bounds,
                                             platform::Screen& screen);

// Whether enough of `bounds` for the user to take hold of lies in one of the work areas.
[[nodiscard]] bool InSight(const platform::Rect& bounds,
                           const std::vector<platform::Monitor>& monitors);

}  // namespace toolkit
