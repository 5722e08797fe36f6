// Paints the graph: frame, background, bars and scale.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "display/graph/scale.h"
#include "platform/canvas.h"
#include "toolkit/controls/panel.h"

namespace display {

enum class ScalePosition { kLeft, kRight };

// What the graph meter shows: its properties, with the values of its design.
struct GraphLook : ScaleRule {
  // Colours of the bars: face, left and upper edge, right edge.
  platform::Colour InColor = 0x0000CD;
  platform::Colour InLight = 0x8184FE;
  platform::Colour InShadow = 0x004000;
  platform::Colour OutColor = 0x00FFFF;
  platform::Colour OutLight = 251900;
  platform::Colour OutShadow = 0x004000;
  platform::Colour DisplayColor = platform::colour::kButtonFace;  // background
  platform::Colour BorderColor = platform::colour::kBlack;
  toolkit::BevelCut BevelInner = toolkit::BevelCut::kNone;
  toolkit::BevelCut BevelOuter = toolkit::BevelCut::kNone;
  // Widths in pixels; a width below the smallest one that can be drawn is drawn as that one.
  int BevelWidth = 1;
  int BorderWidth = 1;
  int PulseWidth = 3;
  int PulseSpace = 0;
  bool Pulse3D = true;  // bars with light and shadow edges
  // In pixels. A bar that is not wider keeps its colour: it has light on top and shadow at its foot
  // only.
  int FlatPulseWidth = 4;
  bool ScaleShow = true;
  display::ScalePosition ScalePosition = display::ScalePosition::kLeft;
  // When true, what is neither bar nor text nor frame is left out of the window. The texts get a
  // rim of almost the background's colour.
  bool Transparent = false;
  // The font of the scale, and its colour.
  platform::FontStyle Font;
  platform::Colour FontColour = platform::colour::kWindowText;

  friend bool operator==(const GraphLook&, const GraphLook&) = default;
};

// Returns the sum of the frame widths on one side: outer bevel, border and inner bevel, as far as
// they are shown.
[[nodiscard]] int FrameWidth(const GraphLook& look);

// Returns how many samples fit into an area that is `width` pixels wide, the last one perhaps cut.
[[nodiscard]] std::size_t SamplesThatFit(const GraphLook& look, int width);

// Paints the whole canvas. `samples` ends with the newest, which stands at the right edge; those
// that do not fit are left out.
void PaintGraph(platform::Canvas& canvas, const GraphLook& look,
                std::span<const GraphSample> samples, std::string_view decimal_separator);

// Returns the pixels of `picture` whose colour is not `background` (0x00BBGGRR), as rectangles that
// do not overlap, from top to bottom.
[[nodiscard]] std::vector<platform::Rect> VisibleParts(const platform::Bitmap& picture,
                                                       platform::Colour background);

}  // namespace display
