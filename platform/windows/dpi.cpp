#include "platform/windows/dpi.h"

#include <shellscalingapi.h>

#include "platform/windows/drawing/gdi.h"

namespace platform::windows {
namespace {

int DpiOfSystem() {
  const WindowDc screen;
  return screen.get() != nullptr ? ::GetDeviceCaps(screen.get(), LOGPIXELSY)
                                 : USER_DEFAULT_SCREEN_DPI;
}

}  // namespace

int DpiOfWindow(HWND hwnd) {
  const UINT dpi = ::GetDpiForWindow(hwnd);
  return dpi != 0 ? static_cast<int>(dpi) : DpiOfSystem();
}

int ScaledFor(HWND hwnd, int design) {
  return ::MulDiv(design, DpiOfWindow(hwnd), USER_DEFAULT_SCREEN_DPI);
}

int DpiOfMonitor(HMONITOR monitor) {
  UINT x = 0;
  UINT y = 0;
  const HRESULT result = ::GetDpiForMonitor(monitor, MDT_EFFECTIVE_DPI, &x, &y);
  return SUCCEEDED(result) && y != 0 ? static_cast<int>(y) : DpiOfSystem();
}

}  // namespace platform::windows
