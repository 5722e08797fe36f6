#include "platform/windows/windows/window_effects.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

#include "platform/windows/drawing/gdi.h"
#include "platform/windows/system_handles.h"

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

namespace {

// The region is made in one call: uniting hundreds of regions one by one would take too much of a
// scan.
HRGN MakeRegion(std::span<const Rect> parts) {
  if (parts.empty()) return ::CreateRectRgn(0, 0, 0, 0);
  const std::size_t size = sizeof(RGNDATAHEADER) + parts.size() * sizeof(RECT);
  const auto memory = std::make_unique<std::byte[]>(size);
  auto* header = new (memory.get()) RGNDATAHEADER{};
  header->dwSize = sizeof(*header);
  header->iType = RDH_RECTANGLES;
  header->nCount = static_cast<DWORD>(parts.size());
  auto* rects = reinterpret_cast<RECT*>(memory.get() + sizeof(*header));
  std::transform(parts.begin(), parts.end(), rects, &ToRect);
  header->rcBound = rects[0];
  for (std::size_t i = 1; i < parts.size(); ++i) {
    ::UnionRect(&header->rcBound, &header->rcBound, &rects[i]);
  }
  return ::ExtCreateRegion(nullptr, static_cast<DWORD>(size),
                           reinterpret_cast<const RGNDATA*>(memory.get()));
}

}  // namespace

void WindowShape::Set(HWND hwnd, std::span<const Rect> parts) {
  if (parts_ && std::ranges::equal(*parts_, parts)) return;
  const HRGN region = MakeRegion(parts);
  if (region == nullptr) return;
  if (!::SetWindowRgn(hwnd, region, TRUE)) {  // on success the system owns the region
    ::DeleteObject(region);
    return;
  }
  parts_.emplace(parts.begin(), parts.end());
}

void WindowShape::Reset(HWND hwnd) {
  if (!parts_) return;
  parts_.reset();
  ::SetWindowRgn(hwnd, nullptr, TRUE);
}

}  // namespace platform::windows
