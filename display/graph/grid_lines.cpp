#include "display/graph/grid_lines.h"

#include <cstdint>

#include "toolkit/design_pixels.h"

namespace display {
namespace {

namespace setting = settings::setting;

struct GridSettings {
  const settings::BooleanSetting& visible;
  const settings::IntegerSetting& space;
  const settings::ColourSetting& colour;
  const settings::IntegerSetting& style;
};

struct GridPen {
  platform::Colour colour;
  platform::PenStyle style;
};

// A style that the list does not have leaves the pen solid.
platform::PenStyle StyleOf(std::int64_t stored) {
  switch (stored) {
    case 1:
      return platform::PenStyle::kDash;
    case 2:
      return platform::PenStyle::kDot;
    case 3:
      return platform::PenStyle::kDashDot;
    case 4:
      return platform::PenStyle::kDashDotDot;
    default:
      return platform::PenStyle::kSolid;
  }
}

// Calls `line` for every multiple of the stored spacing from 1 to `length`. A spacing of 0 or less
// draws nothing.
template <class DrawLine>
void WalkLines(settings::Store& store, const GridSettings& grid, int length, int dpi,
               const DrawLine& line) {
  if (length <= 0 || !store.Read(grid.visible)) return;
  const std::int64_t space = store.Read(grid.space);
  if (space <= 0 || space > length) return;
  const int step = toolkit::ScaleTo(dpi, static_cast<int>(space));
  if (step > length) return;
  const GridPen pen{store.Read(grid.colour), StyleOf(store.Read(grid.style))};
  for (int at = step; at <= length; at += step) line(at, pen);
}

}  // namespace

void DrawGridLines(platform::Canvas& canvas, settings::Store& store, int frame, int dpi) {
  const platform::Size size = canvas.Extent();
  WalkLines(
      store,
      {setting::hGridVisible, setting::hLineSpace, setting::hLineColor, setting::cmbHLineStyle},
      size.height, dpi, [&](int y, const GridPen& pen) {
        canvas.Line({0, y}, {size.width, y}, pen.colour, pen.style);
      });
  WalkLines(
      store,
      {setting::vGridVisible, setting::vLineSpace, setting::vLineColor, setting::cmbVLineStyle},
      size.width, dpi, [&](int x, const GridPen& pen) {
        canvas.Line({x, frame}, {x, size.height - frame}, pen.colour, pen.style);
      });
}

}  // namespace display
