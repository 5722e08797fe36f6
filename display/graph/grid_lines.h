// The grid over the graph.
#pragma once

#include "platform/canvas.h"
#include "settings/store.h"

namespace display {

// Draws the horizontal and vertical lines that are switched on, over the whole canvas.
//   frame  pixels that the frame takes on each side; vertical lines stay inside the frame
//   dpi    resolution of the screen; the stored spacings are pixels at 96 dpi
void DrawGridLines(platform::Canvas& canvas, settings::Store& store, int frame, int dpi);

}  // namespace display
