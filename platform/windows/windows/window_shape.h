// The part of a window that exists.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/geometry.h"
#include "platform/windows/win32.h"

namespace platform::windows {

class WindowShape {
 public:
  // Nothing when the window has that shape.
  void Set(HWND hwnd, std::span<const Rect> parts);
  void Reset(HWND hwnd);

 private:
  std::optional<std::vector<Rect>> parts_;  // nothing: the whole window
};

}  // namespace platform::windows
