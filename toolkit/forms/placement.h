// Where windows may stand.
#pragma once

#include <vector>

#include "platform/geometry.h"
#include "platform/screen.h"
#include "platform/top_window.h"

namespace toolkit {

// `bounds` moved, not sized, so that it lies inside the work area of its monitor; one that is
// larger starts at the upper left corner.
[[nodiscard]] platform::Rect BroughtIntoView(const platform::Rect& bounds,
                                             platform::Screen& screen);

// A window of this size in the middle of the monitor's work area, as BroughtIntoView leaves it.
[[nodiscard]] platform::Rect Centred(platform::Size size, const platform::Monitor& monitor);

// Where a window can be taken hold of.
enum class Hold { kCaption, kAnywhere };

// Whether enough of `bounds` for the user to take hold of lies in one of the work areas: a piece of
// 24 design pixels either way, which for a caption is its whole height.
[[nodiscard]] bool InSight(const platform::Rect& bounds, Hold hold,
                           const std::vector<platform::Monitor>& monitors);

// Where to scroll to, so that what lies from `low` to `high` of the inside is seen; a part of it
// when it is higher than the page.
[[nodiscard]] int ScrolledToShow(const platform::Scroll& scroll, int low, int high);

}  // namespace toolkit
