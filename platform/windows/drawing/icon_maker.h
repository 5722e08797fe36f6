// Makes icons from pictures.
#pragma once

#include <optional>

#include "platform/canvas.h"
#include "platform/windows/drawing/gdi.h"
#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

using Icon = Handle<ZeroIsNone<HICON, &::DestroyIcon>>;

// Keeps the two bitmaps that an icon is made of, since a live icon is made anew every second.
class IconMaker {
 public:
  // Returns an icon of the picture's size, in which pixels of the colour `see_through` are left
  // out. The icon is empty when the system is short of memory.
  [[nodiscard]] Icon Make(const Bitmap& picture, std::optional<Colour> see_through);

 private:
  [[nodiscard]] bool Resize(Size size);

  Size size_;
  GdiBitmap colours_;  // in the screen's format
  GdiBitmap mask_;     // one bit a pixel: set where nothing is drawn
  MemoryDc dc_;
};

}  // namespace platform::windows
