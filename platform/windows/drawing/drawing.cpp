#include "platform/windows/drawing/drawing.h"

#include <algorithm>
#include <utility>

namespace platform::windows {
namespace {

// The number of pixels that are kept between paintings. It is ample for the meter, while a large
// window, which is open only now and then, gives its memory back.
constexpr int kKeptPixels = 128 * 1024;

int Pixels(const Dib& dib) { return dib.size().width * dib.size().height; }

}  // namespace

void BackBuffer::Compose(HDC target, Point at, Size size, const RECT& shown, Colour background,
                         const std::function<void(GdiCanvas&)>& paint) {
  if (size.width <= 0 || size.height <= 0 || ::IsRectEmpty(&shown)) return;
  std::unique_ptr<Dib> dib = Take(size);
  if (!dib) return;
  const Rect part = FromRect(shown);
  {
    const SavedDc saved(dib->dc());
    ::IntersectClipRect(dib->dc(), part.left, part.top, part.Right(), part.Bottom());
    FillArea(dib->dc(), shown, background);
    GdiCanvas canvas(dib->dc(), size, fonts_);
    paint(canvas);
  }
  ::BitBlt(target, at.x + part.left, at.y + part.top, part.width, part.height, dib->dc(), part.left,
           part.top, SRCCOPY);
  Keep(std::move(dib));
}

std::unique_ptr<Dib> BackBuffer::Take(Size size) {
  std::unique_ptr<Dib> dib = std::move(kept_);
  if (!dib) return Dib::Make(size);
  const Size have = dib->size();
  if (have.width >= size.width && have.height >= size.height) return dib;
  dib.reset();  // before the larger one is made
  return Dib::Make({std::max(have.width, size.width), std::max(have.height, size.height)});
}

void BackBuffer::Keep(std::unique_ptr<Dib> dib) {
  if (!kept_ && Pixels(*dib) <= kKeptPixels) kept_ = std::move(dib);
}

}  // namespace platform::windows
