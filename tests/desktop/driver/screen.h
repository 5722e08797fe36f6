// Pictures of the screen.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/desktop/driver/win.h"

namespace desktop {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0x00RRGGBB, row by row from the top

  [[nodiscard]] std::uint32_t At(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
  // Each pixel becomes a block of `factor` by `factor`.
  [[nodiscard]] Picture Enlarged(int factor) const;
};

// Pictures of the same height, side by side.
[[nodiscard]] Picture Beside(const std::vector<Picture>& pictures);

// What is seen in an area of the screen. Throws std::runtime_error when the system refuses.
[[nodiscard]] Picture TakePicture(const RECT& area);
[[nodiscard]] Picture TakePictureOfScreen();

// Writes a PNG file. Throws std::runtime_error when that fails.
void SavePng(const Picture& picture, const std::wstring& path);

}  // namespace desktop
