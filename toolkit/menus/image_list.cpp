#include "toolkit/menus/image_list.h"

#include "toolkit/design_pixels.h"

namespace toolkit {

void ImageList::Draw(int index, platform::Canvas& canvas, platform::Point at, int dpi) const {
  if (index < 0 || index >= Count()) return;
  const Image& image = images_[static_cast<std::size_t>(index)];
  for (int y = 0; y < kImageSize; ++y) {
    for (int x = 0; x < kImageSize; ++x) {
      const char letter = image[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
      for (const PaletteColour& entry : palette_) {
        if (entry.letter != letter) continue;
        const int left = ScaleTo(dpi, x);
        const int top = ScaleTo(dpi, y);
        canvas.Fill(
            {at.x + left, at.y + top, ScaleTo(dpi, x + 1) - left, ScaleTo(dpi, y + 1) - top},
            entry.colour);
      }
    }
  }
}

}  // namespace toolkit
