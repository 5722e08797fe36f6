// Resolutions of windows and monitors, in pixels an inch; that of the whole desktop where the
// system does not know.
#pragma once

#include "platform/windows/win32.h"

namespace platform::windows {

// At its present place (GetDpiForWindow).
[[nodiscard]] int DpiOfWindow(HWND hwnd);

// GetDpiForMonitor.
[[nodiscard]] int DpiOfMonitor(HMONITOR monitor);

}  // namespace platform::windows
