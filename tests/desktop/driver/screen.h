// Pictures of the screen.
#pragma once

#include <string>
#include <vector>

#include "platform/colour.h"
#include "tests/desktop/driver/win.h"

namespace desktop {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<platform::Colour> pixels;  // row by row from the top
};

// What is seen in an area of the screen. Throws std::runtime_error when the system refuses.
[[nodiscard]] Picture TakePicture(const RECT& area);
[[nodiscard]] Picture TakePictureOfScreen();

// Writes a PNG file. Throws std::runtime_error when that fails.
void SavePng(const Picture& picture, const std::wstring& path);

}  // namespace desktop
