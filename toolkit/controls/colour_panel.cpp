#include "toolkit/controls/colour_panel.h"

#include "toolkit/application.h"
#include "toolkit/controls/bevel.h"

namespace toolkit {

ColourPanel::ColourPanel(Control& parent, std::string_view name)
    : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateButton(on, Name(), platform::ButtonKind::kPainted, *this);
  });
}

void ColourPanel::Paint(platform::Canvas& canvas) {
  const platform::Size size = canvas.Extent();
  const platform::Rect inside =
      DrawBevel(canvas, {0, 0, size.width, size.height}, BevelCut::kLowered, 1, Colour());
  canvas.Fill(inside, Enabled() ? Colour() : platform::colour::kButtonFace);
}

}  // namespace toolkit
