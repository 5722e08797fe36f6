// Paints the graph: frame, background, bars and scale.
#pragma once

#include <span>
#include <string_view>

#include "display/graph/scale.h"
#include "platform/canvas.h"
#include "toolkit/controls/bevel.h"

namespace display {

struct BarColours {
  platform::Colour face = 0;
  platform::Colour light = 0;   // left and upper edge
  platform::Colour shadow = 0;  // right edge
};

// How the graph looks; widths in real pixels.
struct GraphLook {
  BarColours in;
  BarColours out;
  platform::Colour background = platform::colour::kButtonFace;
  platform::Colour border = platform::colour::kBlack;
  toolkit::BevelCut bevel_inner = toolkit::BevelCut::kNone;
  toolkit::BevelCut bevel_outer = toolkit::BevelCut::kNone;
  int bevel_width = 1;
  int border_width = 1;
  bool pulse_3d = true;
  int pulse_width = 3;
  int pulse_space = 0;
  bool scale_show = true;
  bool scale_on_right = false;
  platform::FontSpec font;
  platform::Colour font_colour = platform::colour::kWindowText;
};

// The sum of the frame widths on one side: outer bevel, border and inner bevel, as far as shown.
[[nodiscard]] int FrameWidth(const GraphLook& look);

// Samples that fit into an area so many pixels wide, the last one perhaps cut.
[[nodiscard]] std::size_t SamplesThatFit(const GraphLook& look, int width);

// Paints the whole canvas. `samples` ends with the newest; those that do not fit are left out. The
// newest stands at the right edge.
void PaintGraph(platform::Canvas& canvas, const GraphLook& look,
                std::span<const GraphSample> samples, const ScaleRule& choice,
                std::string_view decimal_separator);

}  // namespace display
