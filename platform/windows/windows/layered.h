// Windows that let through what is behind them.
#pragma once

#include <cstdint>

#include "platform/windows/win32.h"

namespace platform::windows {

// Returns whether a version of the system has layered windows: the NT family from version 5 on.
[[nodiscard]] constexpr bool HasLayeredWindows(DWORD platform_id, DWORD major_version) {
  return platform_id == VER_PLATFORM_WIN32_NT && major_version >= 5;
}

// Sets the opacity of a window; 255 covers everything. Does nothing on a system without layered
// windows.
void SetWindowOpacity(HWND hwnd, std::uint8_t alpha);

}  // namespace platform::windows
