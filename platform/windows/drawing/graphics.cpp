#include "platform/windows/drawing/graphics.h"

#include <algorithm>
#include <cstddef>

namespace platform::windows {
namespace {

// The picture has red where a colour has blue.
Colour ColourOf(std::uint32_t rgb) {
  return (rgb & 0xFFU) << 16 | (rgb & 0xFF00U) | (rgb >> 16 & 0xFFU);
}

}  // namespace

Dib::Dib(MemoryDc dc, GdiBitmap bitmap, const std::uint32_t* bits, Size size)
    : dc_(std::move(dc)),
      bitmap_(std::move(bitmap)),
      selected_(dc_.get(), bitmap_.get()),
      bits_(bits),
      size_(size) {}

std::unique_ptr<Dib> Dib::Make(Size size) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = size.width;
  info.bmiHeader.biHeight = -size.height;  // negative: the first row is the top one
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  MemoryDc dc(::CreateCompatibleDC(nullptr));
  GdiBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!dc || !bitmap) return nullptr;
  return std::unique_ptr<Dib>(
      new Dib(std::move(dc), std::move(bitmap), static_cast<const std::uint32_t*>(bits), size));
}

Colour Dib::Pixel(Point at) const {
  ::GdiFlush();  // drawing may still be queued
  return ColourOf(Row(at.y)[at.x]);
}

void Dib::ReadRow(int y, std::span<Colour> row) const {
  ::GdiFlush();
  std::transform(Row(y), Row(y) + row.size(), row.begin(), &ColourOf);
}

const std::uint32_t* Dib::Row(int y) const {
  return bits_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width);
}

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
