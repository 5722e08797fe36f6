// Gives a window a shape other than its rectangle.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/geometry.h"
#include "platform/windows/win32.h"

namespace platform::windows {

class WindowShape {
 public:
  // Does nothing when the window has this shape already.
  void Set(HWND hwnd, std::span<const Rect> parts);
  void Reset(HWND hwnd);

 private:
  std::optional<std::vector<Rect>> parts_;  // nullopt: the whole window
};

}  // namespace platform::windows
