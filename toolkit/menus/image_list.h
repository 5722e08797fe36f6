// Small pictures, kept as rows of letters so that they live in the code that uses them.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "platform/canvas.h"

namespace toolkit {

inline constexpr int kImageSize = 16;  // design pixels, both ways

// Sixteen rows of sixteen letters; each letter is a colour of the palette, "." is see-through.
using Image = std::array<std::string_view, kImageSize>;

struct PaletteColour {
  char letter;
  platform::Colour colour;
};

class ImageList {
 public:
  constexpr ImageList() = default;
  constexpr ImageList(std::span<const Image> images, std::span<const PaletteColour> palette)
      : images_(images), palette_(palette) {}

  [[nodiscard]] int Count() const { return static_cast<int>(images_.size()); }

  // Draws an image with its top left corner at `at`, enlarged from 96 dpi to `dpi`. An index
  // outside the list draws nothing.
  void Draw(int index, platform::Canvas& canvas, platform::Point at, int dpi) const;

 private:
  std::span<const Image> images_;
  std::span<const PaletteColour> palette_;
};

}  // namespace toolkit
