#include "platform/windows/drawing/icon_maker.h"

#include "platform/windows/drawing/graphics.h"

namespace platform::windows {

bool IconMaker::Resize(Size size) {
  if (size == size_ && colours_ && mask_ && dc_) return true;
  const WindowDc screen;
  if (!dc_) dc_ = MemoryDc(::CreateCompatibleDC(screen.get()));
  colours_ = GdiBitmap(::CreateCompatibleBitmap(screen.get(), size.width, size.height));
  mask_ = GdiBitmap(::CreateBitmap(size.width, size.height, 1, 1, nullptr));
  size_ = size;
  return dc_ && colours_ && mask_;
}

Icon IconMaker::Make(const Bitmap& picture, std::optional<Colour> see_through) {
  const Size size = picture.Extent();
  if (!Resize(size)) return {};
  const HDC source = dynamic_cast<const DibBitmap&>(picture).dib().dc();
  {
    const Selection target(dc_.get(), mask_.get());
    if (see_through) {
      // Copying into one bit a pixel sets the pixels that have the background colour.
      const COLORREF before = ::SetBkColor(source, ToColorref(*see_through));
      ::BitBlt(dc_.get(), 0, 0, size.width, size.height, source, 0, 0, SRCCOPY);
      ::SetBkColor(source, before);
    } else {
      ::PatBlt(dc_.get(), 0, 0, size.width, size.height, BLACKNESS);
    }
  }
  {
    const Selection target(dc_.get(), colours_.get());
    ::BitBlt(dc_.get(), 0, 0, size.width, size.height, source, 0, 0, SRCCOPY);
    if (see_through) {
      // The pixels that are left out must be black: the shell combines them with what lies below.
      for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
          if (picture.Pixel({x, y}) == ToColorref(*see_through)) {
            ::SetPixelV(dc_.get(), x, y, 0);
          }
        }
      }
    }
  }
  ICONINFO info{};
  info.fIcon = TRUE;
  info.hbmColor = colours_.get();
  info.hbmMask = mask_.get();
  return Icon(::CreateIconIndirect(&info));
}

}  // namespace platform::windows
