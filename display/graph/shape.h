// The part of a picture that is not background.
#pragma once

#include <vector>

#include "platform/canvas.h"

namespace display {

// Returns the pixels of `picture` whose colour is not `background` (0x00BBGGRR), as rectangles that
// do not overlap, from top to bottom.
[[nodiscard]] std::vector<platform::Rect> VisibleParts(const platform::Bitmap& picture,
                                                       platform::Colour background);

}  // namespace display
