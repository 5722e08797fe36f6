// Resolutions of windows and monitors.
#pragma once

#include "platform/windows/library.h"

namespace platform::windows {

// Pixels an inch of the whole desktop, as systems without a resolution for each monitor have it.
[[nodiscard]] int DpiOfSystem();

// Of the window at its present place (GetDpiForWindow, where the system has it).
[[nodiscard]] int DpiOfWindow(HWND hwnd);

// Of monitors (GetDpiForMonitor, where the system has it).
class MonitorDpi {
 public:
  MonitorDpi();

  [[nodiscard]] int Of(HMONITOR monitor) const;

 private:
  using GetDpi = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);

  Library library_;  // none before Windows 8.1
  GetDpi get_;       // of it; may be null
};

}  // namespace platform::windows
