#include "toolkit/controls/label.h"

#include <algorithm>

#include "toolkit/application.h"

namespace toolkit {
namespace {

// The system's usual colour of links, for schemes whose own cannot be read on a page.
constexpr platform::Colour kLinkColour = 0xCC6600;

// Design pixels that the focus mark takes on the left.
constexpr int kIndent = 4;

}  // namespace

Label::Label(Control& parent, std::string_view name, const platform::TextStyle& style)
    : Control(parent, name), marks_key_(style.mnemonic) {
  Attach([this, style](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateText(on, Name(), style, *this);
  });
}

LinkLabel::LinkLabel(Control& parent, std::string_view name)
    : ButtonControl(parent, name, platform::ButtonKind::kPainted) {}

platform::Spoken LinkLabel::Describe() const {
  platform::Spoken spoken = ButtonControl::Describe();
  spoken.role = platform::SpokenRole::kLink;
  return spoken;
}

platform::Colour LinkLabel::LinkColour() const {
  platform::Screen& screen = App().Platform().screen;
  const platform::Colour links = screen.Resolve(platform::colour::kHotLight);
  return platform::IsReadable(links, screen.Resolve(Colour())) ? links : kLinkColour;
}

void LinkLabel::Paint(platform::Canvas& canvas) {
  const platform::Size size = canvas.Extent();
  canvas.Fill(canvas.Area(), Colour());
  const platform::Colour colour = Enabled() ? LinkColour() : platform::colour::kGrayText;
  const platform::FontStyle font = Scale(Font());
  const int left = Scale(kIndent);
  canvas.Text({left, 0, size.width - left, size.height}, Caption(), font, colour,
              platform::TextAlign::kLeft);
  const platform::Size text = canvas.TextSize(Caption(), font);
  const int below = std::min((size.height + text.height) / 2, size.height) - 1;
  canvas.Line({left, below}, {left + text.width, below}, colour);
}

}  // namespace toolkit
