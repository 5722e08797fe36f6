#include "platform/windows/drawing/graphics.h"

namespace platform::windows {
namespace {

constexpr int kLongestSide = 16384;

}  // namespace

Colour DibBitmap::Pixel(Point at) const {
  const Rect inside{0, 0, Extent().width, Extent().height};
  return inside.Contains(at) ? dib_->Pixel(at) : colour::kBlack;
}

std::unique_ptr<Bitmap> Graphics::CreateBitmap(Size size) {
  if (size.width < 1 || size.width > kLongestSide) return nullptr;
  if (size.height < 1 || size.height > kLongestSide) return nullptr;
  std::unique_ptr<Dib> dib = Dib::Make(size);
  if (!dib) return nullptr;
  return std::make_unique<DibBitmap>(std::move(dib), fonts_);
}

}  // namespace platform::windows
