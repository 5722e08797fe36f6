// What all drawing code shares: the fonts, and the picture on which a window is painted before it
// is shown in one piece.
#pragma once

#include <functional>
#include <memory>

#include "platform/windows/drawing/gdi_canvas.h"
#include "platform/windows/drawing/graphics.h"

namespace platform::windows {

// All windows share one back buffer, since they paint one after the other.
class BackBuffer {
 public:
  explicit BackBuffer(FontCache& fonts) : fonts_(fonts) {}

  // Calls `paint` with a canvas of `size`, filled with `background`. Then copies the part `shown`
  // of it to `target`, where the top left corner of the canvas is at `at`. Does nothing when memory
  // is short.
  void Compose(HDC target, Point at, Size size, const RECT& shown, Colour background,
               const std::function<void(GdiCanvas&)>& paint);

 private:
  // Returns the kept picture, or a new one when that is too small or in use.
  [[nodiscard]] std::unique_ptr<Dib> Take(Size size);
  void Keep(std::unique_ptr<Dib> dib);

  FontCache& fonts_;
  std::unique_ptr<Dib> kept_;  // null while it is in use
};

struct Drawing {
  FontCache fonts;
  BackBuffer back_buffer{fonts};
};

}  // namespace platform::windows
