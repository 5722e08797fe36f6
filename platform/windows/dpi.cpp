#include "platform/windows/dpi.h"

namespace platform::windows {

int DpiOfSystem() {
  const HDC screen = ::GetDC(nullptr);
  if (screen == nullptr) return USER_DEFAULT_SCREEN_DPI;
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  return dpi;
}

int DpiOfWindow(HWND hwnd) {
  using GetDpi = UINT(WINAPI*)(HWND);
  static const auto get = Function<GetDpi>(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
  const UINT dpi = get != nullptr ? get(hwnd) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : DpiOfSystem();
}

MonitorDpi::MonitorDpi()
    : library_(::LoadLibraryExW(L"shcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)),
      get_(Function<GetDpi>(library_.get(), "GetDpiForMonitor")) {}

int MonitorDpi::Of(HMONITOR monitor) const {
  constexpr int kEffective = 0;  // MDT_EFFECTIVE_DPI
  UINT x = 0;
  UINT y = 0;
  if (get_ == nullptr || FAILED(get_(monitor, kEffective, &x, &y)) || y == 0) return DpiOfSystem();
  return static_cast<int>(y);
}

}  // namespace platform::windows
