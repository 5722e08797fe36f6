#include "toolkit/controls/panel.h"

#include "toolkit/application.h"

namespace toolkit {
namespace {

namespace colour = platform::colour;

constexpr int kBevelWidth = 1;  // real pixels: a hair line on every screen

void DrawEdges(platform::Canvas& canvas, const platform::Rect& r, platform::Colour top_left,
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
  const bool lowered = cut == BevelCut::kLowered;
  const platform::Colour shadow = cut == BevelCut::kSpace ? space : colour::kButtonShadow;
  const bool one_colour = cut == BevelCut::kSpace || cut == BevelCut::kEven;
  const platform::Colour light = one_colour ? shadow : colour::kButtonHighlight;
  platform::Rect rest = area;
  for (int i = 0; i < width && !rest.Empty(); ++i) {
    DrawEdges(canvas, rest, lowered ? shadow : light, lowered ? light : shadow);
    rest = rest.Shrunk(1);
  }
  return rest;
}

platform::Rect DrawFrame(platform::Canvas& canvas, const platform::Rect& area) {
  return DrawBevel(canvas, area, BevelCut::kEven, kBevelWidth, {});
}

void Panel::SetBevels(BevelCut outer, BevelCut inner) {
  if (outer == outer_ && inner == inner_) return;
  outer_ = outer;
  inner_ = inner;
  ArrangeChildren(ChildArea());
  Invalidate();
}

void Panel::Paint(platform::Canvas& canvas) {
  canvas.Fill(canvas.Area(), Colour());
  const platform::Rect inside = DrawBevel(canvas, canvas.Area(), outer_, kBevelWidth, Colour());
  DrawBevel(canvas, inside, inner_, kBevelWidth, Colour());
}

platform::Rect Panel::ChildArea() const {
  platform::Rect area = Control::ChildArea();
  if (outer_ != BevelCut::kNone) area = area.Shrunk(kBevelWidth);
  if (inner_ != BevelCut::kNone) area = area.Shrunk(kBevelWidth);
  return area;
}

}  // namespace toolkit
