#include "toolkit/controls/bevel.h"

namespace toolkit {
namespace {

void DrawFrame(platform::Canvas& canvas, const platform::Rect& r, platform::Colour top_left,
               platform::Colour bottom_right) {
  canvas.Fill({r.left, r.top, r.width, 1}, top_left);
  canvas.Fill({r.left, r.top, 1, r.height}, top_left);
  canvas.Fill({r.left, r.Bottom() - 1, r.width, 1}, bottom_right);
  canvas.Fill({r.Right() - 1, r.top, 1, r.height}, bottom_right);
}

}  // namespace

platform::Rect DrawBevel(platform::Canvas& canvas, const platform::Rect& area, BevelCut cut,
                         int width, platform::Colour space) {
  if (cut == BevelCut::kNone) return area;
  platform::Rect rest = area;
  for (int i = 0; i < width && !rest.Empty(); ++i) {
    switch (cut) {
      case BevelCut::kLowered:
        DrawFrame(canvas, rest, platform::colour::kButtonShadow,
                  platform::colour::kButtonHighlight);
        break;
      case BevelCut::kRaised:
        DrawFrame(canvas, rest, platform::colour::kButtonHighlight,
                  platform::colour::kButtonShadow);
        break;
      default:
        DrawFrame(canvas, rest, space, space);
        break;
    }
    rest = rest.Shrunk(1);
  }
  return rest;
}

}  // namespace toolkit
