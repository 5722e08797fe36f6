// Frames that look raised or lowered.
#pragma once

#include "platform/canvas.h"

namespace toolkit {

enum class BevelCut { kNone, kLowered, kRaised, kSpace };

// Draws a frame `width` pixels wide just inside `area` and returns what is left within. kNone draws
// and takes nothing, kSpace takes the width in the colour `space`.
platform::Rect DrawBevel(platform::Canvas& canvas, const platform::Rect& area, BevelCut cut,
                         int width, platform::Colour space);

}  // namespace toolkit
