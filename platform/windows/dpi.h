// The resolutions of windows and monitors, in pixels per inch. When the system does not know one,
// the resolution of the whole desktop is returned.
#pragma once

#include "platform/windows/win32.h"

namespace platform::windows {

// Returns the resolution of the window at its present place (GetDpiForWindow).
[[nodiscard]] int DpiOfWindow(HWND hwnd);

// Returns how many pixels of the window a length at 96 pixels per inch is.
[[nodiscard]] int ScaledFor(HWND hwnd, int design);

// Returns the resolution of the monitor (GetDpiForMonitor).
[[nodiscard]] int DpiOfMonitor(HMONITOR monitor);

}  // namespace platform::windows
