#include "tests/desktop/driver/screen.h"

#include <algorithm>
#include <memory>
#include <span>
// Behind the system's own header, which they need.
#include <objidl.h>
// It uses these two without saying whose they are.
using std::max;  // NOLINT(misc-unused-using-decls)
using std::min;  // NOLINT(misc-unused-using-decls)
#include <gdiplus.h>

#include "platform/windows/drawing/graphics.h"
#include "platform/windows/system_error.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

using platform::windows::ThrowSystemError;

constexpr CLSID kPngEncoder = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

}  // namespace

Picture TakePicture(const RECT& area) {
  Picture picture{static_cast<int>(WidthOf(area)), static_cast<int>(HeightOf(area)), {}};
  const auto copy = platform::windows::Dib::Make({picture.width, picture.height});
  const platform::windows::WindowDc screen;
  if (copy == nullptr || ::BitBlt(copy->dc(), 0, 0, picture.width, picture.height, screen.get(),
                                  area.left, area.top, SRCCOPY) == FALSE) {
    ThrowSystemError("BitBlt of the screen", ::GetLastError());
  }
  const auto width = static_cast<std::size_t>(picture.width);
  picture.pixels.resize(width * static_cast<std::size_t>(picture.height));
  for (int y = 0; y < picture.height; ++y) {
    copy->ReadRow(y, std::span(picture.pixels).subspan(width * static_cast<std::size_t>(y), width));
  }
  return picture;
}

Picture TakePictureOfScreen() {
  return TakePicture({0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)});
}

void SavePng(const Picture& picture, const std::wstring& path) {
  const Gdiplus::GdiplusStartupInput input;
  ULONG_PTR token = 0;
  Gdiplus::GdiplusStartup(&token, &input, nullptr);  // until the process ends
  std::vector<Gdiplus::ARGB> pixels;
  for (const platform::Colour colour : picture.pixels) {
    pixels.push_back((colour & 0xFFU) << 16U | (colour & 0xFF00U) | colour >> 16U);
  }
  Gdiplus::Bitmap bitmap(picture.width, picture.height, picture.width * 4, PixelFormat32bppRGB,
                         reinterpret_cast<BYTE*>(pixels.data()));
  // Without the fourth byte, which would be written as transparency.
  const std::unique_ptr<Gdiplus::Bitmap> opaque(
      bitmap.Clone(0, 0, picture.width, picture.height, PixelFormat24bppRGB));
  const Gdiplus::Status status = opaque->Save(path.c_str(), &kPngEncoder, nullptr);
  if (status != Gdiplus::Ok) ThrowSystemError("saving a PNG file", static_cast<DWORD>(status));
}

}  // namespace desktop
