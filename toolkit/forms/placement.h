// The rules for where windows may stand.
#pragma once

#include <vector>

#include "platform/geometry.h"
#include "platform/screen.h"
#include "platform/top_window.h"

namespace toolkit {

// Returns `bounds` moved, not sized, so that it lies inside a work area. A rectangle that is larger
// starts at the upper left corner.
[[nodiscard]] platform::Rect Inside(const platform::Rect& bounds, const platform::Rect& work);

// Returns `bounds` moved inside the work area of its monitor.
[[nodiscard]] platform::Rect BroughtIntoView(const platform::Rect& bounds,
                                             platform::Screen& screen);

// Returns the bounds of a window of this size in the middle of the monitor's work area, and
// inside it.
[[nodiscard]] platform::Rect Centred(platform::Size size, const platform::Monitor& monitor);

// The part of a window by which the user can drag it.
enum class Hold { kCaption, kAnywhere };

// Returns whether enough of `bounds` for the user to take hold of lies in one of the work areas: a
// piece of 24 by 24 design pixels, which for a caption is its whole height.
[[nodiscard]] bool InSight(const platform::Rect& bounds, Hold hold,
                           const std::vector<platform::Monitor>& monitors);

// Returns the scroll position at which the rows from `low` to `high` of the content are seen, or a
// part of them when they are higher than the page.
[[nodiscard]] int ScrolledToShow(const platform::Scroll& scroll, int low, int high);

}  // namespace toolkit
