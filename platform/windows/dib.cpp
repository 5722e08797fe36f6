#include "platform/windows/dib.h"

#include <cstddef>
#include <utility>

namespace platform::windows {

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
  const auto row = static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size_.width);
  const std::uint32_t rgb = bits_[row + static_cast<std::size_t>(at.x)];
  return (rgb & 0xFFU) << 16 | (rgb & 0xFF00U) | (rgb >> 16 & 0xFFU);
}

}  // namespace platform::windows
