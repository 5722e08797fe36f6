#include "toolkit/controls/sign.h"

#include <cmath>
#include <cstdint>
#include <optional>

#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

using platform::Colour;

constexpr Colour kBlue = 0xD77800;
constexpr Colour kSteel = 0x808080;
constexpr Colour kGold = 0x30B8F0;
constexpr Colour kDark = 0x303030;

// The pictures, as the colours of the points in a square of 32 by 32; nullopt where they are
// see-through.

bool InDisc(double x, double y, double middle_x, double middle_y, double radius) {
  return std::hypot(x - middle_x, y - middle_y) <= radius;
}

bool InBox(double x, double y, double left, double top, double right, double bottom) {
  return x >= left && x < right && y >= top && y < bottom;
}

std::optional<Colour> Disc(double x, double y) {
  return InDisc(x, y, 16, 16, 15) ? std::optional(kBlue) : std::nullopt;
}

std::optional<Colour> Lock(double x, double y) {
  if (InDisc(x, y, 16, 20, 2.5) || InBox(x, y, 15, 21, 17, 26)) return kDark;  // the keyhole
  if (InBox(x, y, 6, 14, 26, 30)) return kGold;
  const bool outside = InDisc(x, y, 16, 10, 8) || InBox(x, y, 8, 10, 24, 14);
  const bool inside = InDisc(x, y, 16, 10, 5) || InBox(x, y, 11, 10, 21, 14);
  return outside && !inside ? std::optional(kSteel) : std::nullopt;
}

using Point = std::optional<Colour> (*)(double x, double y);

// Draws the picture with smooth edges: each pixel is the mean of several points in it.
void DrawSmooth(platform::Canvas& canvas, int side, Colour background, Point point) {
  constexpr int kPoints = 4;  // in a pixel, each way
  const double unit = static_cast<double>(kSignSize) / (side * kPoints);
  for (int pixel = 0; pixel < side * side; ++pixel) {
    const int x = pixel % side;
    const int y = pixel / side;
    std::uint32_t sum[3] = {};
    bool covered = false;
    for (int part = 0; part < kPoints * kPoints; ++part) {
      const int column = x * kPoints + part % kPoints;
      const int row = y * kPoints + part / kPoints;
      const std::optional<Colour> found = point((column + 0.5) * unit, (row + 0.5) * unit);
      covered = covered || found;
      const Colour colour = found.value_or(background);
      for (int channel = 0; channel < 3; ++channel) sum[channel] += colour >> (8 * channel) & 0xFFU;
    }
    if (!covered) continue;
    Colour mean = 0;
    for (int channel = 0; channel < 3; ++channel) {
      mean |= sum[channel] / (kPoints * kPoints) << (8 * channel);
    }
    canvas.Fill({x, y, 1, 1}, mean);
  }
}

}  // namespace

void Sign::Paint(platform::Canvas& canvas) {
  Panel::Paint(canvas);
  if (images_ != nullptr) {
    const platform::Size size = canvas.Extent();
    const int side = Scale(side_);
    images_->Draw(0, canvas, {(size.width - side) / 2, (size.height - side) / 2},
                  ParentForm().Dpi() * side_ / kImageSize);
    return;
  }
  const int side = Scale(kSignSize);
  const platform::Colour background = App().Platform().screen.Resolve(Colour());
  DrawSmooth(canvas, side, background, picture_ == Picture::kQuestion ? &Disc : &Lock);
  if (picture_ != Picture::kQuestion) return;
  platform::FontStyle font = Scale(Font());
  font.height = Scale(22);
  font.bold = true;
  canvas.Text({0, 0, side, side}, "?", font, platform::colour::kWhite,
              platform::TextAlign::kCentre);
}

}  // namespace toolkit
