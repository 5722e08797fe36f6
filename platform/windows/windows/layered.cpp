#include "platform/windows/windows/layered.h"

#include "platform/windows/library.h"

namespace platform::windows {
namespace {

// The bits that are added to the extended style, 8947848. Only WS_EX_LAYERED of it is needed; a
// tool window has WS_EX_TOOLWINDOW anyway, the system does not take WS_EX_TOPMOST this way, and the
// other bits mean nothing. The mask is kept because other programs recognise the window by its
// style.
constexpr LONG_PTR kExtendedBits = 0x888888;
static_assert((kExtendedBits & WS_EX_LAYERED) != 0);

constexpr COLORREF kColourKey = 1;  // unused: the flag asks for the opacity only

// GetVersionEx reports an older system to a program whose manifest does not name the present one.
bool SystemHasLayeredWindows() {
  using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
  static const auto get = Function<GetVersion>(::GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof(version);
  return get != nullptr && get(&version) == 0 &&
         HasLayeredWindows(version.dwPlatformId, version.dwMajorVersion);
}

}  // namespace

void SetWindowOpacity(HWND hwnd, std::uint8_t alpha) {
  using SetAttributes = BOOL(WINAPI*)(HWND, COLORREF, BYTE, DWORD);
  if (!SystemHasLayeredWindows()) return;
  static const auto set =
      Function<SetAttributes>(::GetModuleHandleW(L"user32.dll"), "SetLayeredWindowAttributes");
  if (set == nullptr) return;
  const LONG_PTR style = ::GetWindowLongPtrW(hwnd, GWL_EXSTYLE);
  ::SetWindowLongPtrW(hwnd, GWL_EXSTYLE, style | kExtendedBits);
  set(hwnd, kColourKey, alpha, LWA_ALPHA);
}

}  // namespace platform::windows
