#include "tests/desktop/driver/screen.h"

#include <algorithm>
#include <memory>
// Behind the system's own header, which they need.
#include <objidl.h>
// It uses these two without saying whose they are.
using std::max;
using std::min;
#include <gdiplus.h>

#include "platform/windows/system_error.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

using platform::windows::ThrowSystemError;

struct ScreenDc {
  ScreenDc() : dc(::GetDC(nullptr)), memory(::CreateCompatibleDC(dc)) {}
  ~ScreenDc() {
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, dc);
  }
  ScreenDc(const ScreenDc&) = delete;
  ScreenDc& operator=(const ScreenDc&) = delete;
  HDC dc;
  HDC memory;
};

BITMAPINFO TopDown(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  return info;
}

class GdiPlus {
 public:
  GdiPlus() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
  }
  ~GdiPlus() { Gdiplus::GdiplusShutdown(token_); }
  GdiPlus(const GdiPlus&) = delete;
  GdiPlus& operator=(const GdiPlus&) = delete;

 private:
  ULONG_PTR token_ = 0;
};

constexpr CLSID kPngEncoder = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

}  // namespace

Picture Picture::Enlarged(int factor) const {
  Picture large{width * factor, height * factor, {}};
  large.pixels.reserve(pixels.size() * static_cast<std::size_t>(factor * factor));
  for (int y = 0; y < large.height; ++y) {
    for (int x = 0; x < large.width; ++x) large.pixels.push_back(At(x / factor, y / factor));
  }
  return large;
}

Picture Beside(const std::vector<Picture>& pictures) {
  Picture wide{0, pictures.at(0).height, {}};
  for (const Picture& picture : pictures) wide.width += picture.width;
  for (int y = 0; y < wide.height; ++y) {
    for (const Picture& picture : pictures) {
      for (int x = 0; x < picture.width; ++x) wide.pixels.push_back(picture.At(x, y));
    }
  }
  return wide;
}

Picture TakePicture(const RECT& area) {
  Picture picture{static_cast<int>(WidthOf(area)), static_cast<int>(HeightOf(area)), {}};
  const ScreenDc screen;
  const BITMAPINFO info = TopDown(picture.width, picture.height);
  void* bits = nullptr;
  const HBITMAP bitmap =
      ::CreateDIBSection(screen.memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap == nullptr) ThrowSystemError("CreateDIBSection", ::GetLastError());
  const HGDIOBJ before = ::SelectObject(screen.memory, bitmap);
  const BOOL copied = ::BitBlt(screen.memory, 0, 0, picture.width, picture.height, screen.dc,
                               area.left, area.top, SRCCOPY);
  const DWORD error = ::GetLastError();
  ::GdiFlush();
  const auto* pixels = static_cast<const std::uint32_t*>(bits);
  const auto count =
      static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  std::transform(pixels, pixels + count, std::back_inserter(picture.pixels),
                 [](std::uint32_t pixel) { return pixel & 0xFFFFFFU; });
  ::SelectObject(screen.memory, before);
  ::DeleteObject(bitmap);
  if (copied == FALSE) ThrowSystemError("BitBlt of the screen", error);
  return picture;
}

Picture TakePictureOfScreen() {
  return TakePicture({0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)});
}

void SavePng(const Picture& picture, const std::wstring& path) {
  const GdiPlus library;
  std::vector<std::uint32_t> pixels = picture.pixels;
  Gdiplus::Bitmap bitmap(picture.width, picture.height, picture.width * 4, PixelFormat32bppRGB,
                         reinterpret_cast<BYTE*>(pixels.data()));
  // Without the fourth byte, which would be written as transparency.
  const std::unique_ptr<Gdiplus::Bitmap> opaque(
      bitmap.Clone(0, 0, picture.width, picture.height, PixelFormat24bppRGB));
  const Gdiplus::Status status = opaque->Save(path.c_str(), &kPngEncoder, nullptr);
  if (status != Gdiplus::Ok) ThrowSystemError("saving a PNG file", static_cast<DWORD>(status));
}

}  // namespace desktop
