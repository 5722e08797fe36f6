// Reads bitmap files.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/colour.h"
#include "platform/geometry.h"

namespace display {

struct Picture {
  platform::Size size;
  std::vector<platform::Colour> pixels;  // row by row from the top, 0x00BBGGRR

  [[nodiscard]] platform::Colour At(platform::Point at) const {
    return pixels[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size.width) +
                  static_cast<std::size_t>(at.x)];
  }
};

// Returns the picture in the bytes of a BMP file, or nullopt for any other bytes. The file must not
// be compressed, must have 1, 4, 8, 16, 24 or 32 bits a pixel and sides of 1 to 1024 pixels; its
// header says where the colours are.
[[nodiscard]] std::optional<Picture> DecodeBitmap(std::string_view bytes);

}  // namespace display
