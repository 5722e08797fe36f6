#include "toolkit/controls/colour_panel.h"

#include "toolkit/application.h"

namespace toolkit {

ColourPanel::ColourPanel(Control& parent, std::string_view name)
    : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateButton(on, Name(), platform::ButtonKind::kPainted, *this);
  });
}

void ColourPanel::Paint(platform::Canvas& canvas) {
  const platform::Size size = canvas.Extent();
  const platform::Rect all{0, 0, size.width, size.height};
  // The same on all sides: a pale colour would have no edge where the light falls.
  canvas.Fill(all, platform::colour::kButtonShadow);
  canvas.Fill(all.Shrunk(1), Enabled() ? Colour() : platform::colour::kButtonFace);
}

}  // namespace toolkit
