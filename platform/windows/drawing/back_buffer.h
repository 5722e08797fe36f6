// The picture that a painting is composed on before it is shown in one piece.
#pragma once

#include <functional>
#include <memory>

#include "platform/windows/drawing/dib.h"
#include "platform/windows/drawing/font_cache.h"
#include "platform/windows/drawing/gdi_canvas.h"

namespace platform::windows {

// One for all windows: they paint one after the other, so they share the pixels.
class BackBuffer {
 public:
  explicit BackBuffer(FontCache& fonts) : fonts_(fonts) {}

  // Calls `paint` with a canvas of `size`, filled with `background`, and copies the part `shown` of
  // it to `target`, where the canvas has its top left corner at `at`. Does nothing when memory is
  // short.
  void Compose(HDC target, Point at, Size size, const RECT& shown, Colour background,
               const std::function<void(GdiCanvas&)>& paint);

 private:
  // The kept picture, or a new one when it is too small or in use.
  [[nodiscard]] std::unique_ptr<Dib> Take(Size size);
  void Keep(std::unique_ptr<Dib> dib);

  FontCache& fonts_;
  std::unique_ptr<Dib> kept_;  // null while it is in use
};

}  // namespace platform::windows
