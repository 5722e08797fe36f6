// Windows that let through what is behind them, or have another shape than their rectangle.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/geometry.h"
#include "platform/windows/win32.h"

namespace platform::windows {

// Returns whether a version of the system has layered windows: the NT family from version 5 on.
[[nodiscard]] constexpr bool HasLayeredWindows(DWORD platform_id, DWORD major_version) {
  return platform_id == VER_PLATFORM_WIN32_NT && major_version >= 5;
}

// Sets the opacity of a window; 255 covers everything. Does nothing on a system without layered
// windows.
void SetWindowOpacity(HWND hwnd, std::uint8_t alpha);

// Gives a window a shape other than its rectangle.
class WindowShape {
 public:
  // Does nothing when the window has this shape already.
  void Set(HWND hwnd, std::span<const Rect> parts);
  void Reset(HWND hwnd);

 private:
  std::optional<std::vector<Rect>> parts_;  // nullopt: the whole window
};

}  // namespace platform::windows
