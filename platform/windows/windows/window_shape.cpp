#include "platform/windows/windows/window_shape.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

#include "platform/windows/drawing/gdi.h"

namespace platform::windows {
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
