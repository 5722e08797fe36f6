#include "bench/windows/empty_window.h"

#include "bench/windows/own_resources.h"
#include "platform/windows/win32.h"

namespace bench {
namespace {

HWND Show() {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &::DefWindowProcW;
  window_class.hbrBackground = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
  window_class.lpszClassName = kEmptyWindow;
  ::RegisterClassW(&window_class);
  const HWND window =
      ::CreateWindowExW(WS_EX_TOOLWINDOW, kEmptyWindow, L"empty", WS_POPUP | WS_VISIBLE, 10, 10,
                        270, 130, nullptr, nullptr, nullptr, nullptr);
  ::UpdateWindow(window);
  return window;
}

}  // namespace

std::int64_t BytesWithEmptyWindow() {
  const HWND window = Show();
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) ::DispatchMessageW(&message);
  const std::int64_t bytes = PrivateBytes();
  ::DestroyWindow(window);
  return bytes;
}

void RunEmptyWindow() {
  (void)Show();
  MSG message;
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
}

}  // namespace bench
