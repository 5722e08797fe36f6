#include "toolkit/controls/panel.h"

#include "toolkit/application.h"

namespace toolkit {
namespace {

constexpr int kBevelWidth = 1;  // real pixels: a hair line on every screen

}  // namespace

Panel::Panel(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateSurface(on, Name(), *this);
  });
}

void Panel::SetBevels(BevelCut outer, BevelCut inner) {
  if (outer == outer_ && inner == inner_) return;
  outer_ = outer;
  inner_ = inner;
  ArrangeChildren(ChildArea());
  Invalidate();
}

void Panel::Paint(platform::Canvas& canvas) {
  const platform::Size size = canvas.Extent();
  const platform::Rect all{0, 0, size.width, size.height};
  canvas.Fill(all, Colour());
  const platform::Rect inside = DrawBevel(canvas, all, outer_, kBevelWidth, Colour());
  DrawBevel(canvas, inside, inner_, kBevelWidth, Colour());
}

platform::Rect Panel::ChildArea() const {
  platform::Rect area = Control::ChildArea();
  if (outer_ != BevelCut::kNone) area = area.Shrunk(kBevelWidth);
  if (inner_ != BevelCut::kNone) area = area.Shrunk(kBevelWidth);
  return area;
}

}  // namespace toolkit
