#include "preferences/picture_panel.h"

#include "toolkit/application.h"
#include "toolkit/controls/panel.h"

namespace preferences {
namespace {

// Sizes in design pixels.
constexpr int kSide = 16;
constexpr int kGap = 6;
constexpr int kPictures = 4;

}  // namespace

PicturePanel::PicturePanel(toolkit::Control& parent, std::string_view name)
    : ButtonControl(parent, name, platform::ButtonKind::kPainted) {}

void PicturePanel::Load(const std::string& path, const std::string& fallback) {
  pictures_.Load(App().Platform().files, path, fallback);
  Invalidate();
}

void PicturePanel::Paint(platform::Canvas& canvas) {
  const platform::Size size = canvas.Extent();
  const platform::Rect inside =
      toolkit::DrawBevel(canvas, canvas.Area(), toolkit::BevelCut::kLowered, 1, Colour());
  canvas.Fill(inside, platform::colour::kButtonFace);
  const int side = Scale(kSide);
  const auto picture = App().Platform().graphics.CreateBitmap({side, side});
  if (!pictures_.Loaded() || !picture) return;
  for (int i = 0; i < kPictures; ++i) {
    pictures_.Draw(static_cast<display::TrayActivity>(i), picture->GetCanvas(),
                   platform::colour::kButtonFace);
    canvas.Draw(*picture, {Scale(kGap + i * (kSide + kGap)), (size.height - side) / 2});
  }
}

}  // namespace preferences
