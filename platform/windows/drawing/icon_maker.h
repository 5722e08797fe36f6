// Makes icons of pictures.
#pragma once

#include <optional>

#include "platform/canvas.h"
#include "platform/windows/drawing/gdi.h"
#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

struct IconKind {
  using Raw = HICON;
  static constexpr Raw None() { return nullptr; }
  static void Close(Raw icon) { ::DestroyIcon(icon); }
};
using Icon = Handle<IconKind>;

// Keeps the two bitmaps that an icon is made of, since a live icon is made anew every second.
class IconMaker {
 public:
  // An icon of the picture's size; pixels of the colour `see_through` are left out. None when the
  // system is short of memory.
  [[nodiscard]] Icon Make(const Bitmap& picture, std::optional<Colour> see_through);

 private:
  [[nodiscard]] bool Resize(Size size);

  Size size_;
  GdiBitmap colours_;  // of the screen's format
  GdiBitmap mask_;     // one bit a pixel: set where nothing is drawn
  MemoryDc dc_;
};

}  // namespace platform::windows
