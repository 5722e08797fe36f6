// Owners of GDI's objects, and colours in the form that GDI takes.
#pragma once

#include <string_view>
#include <utility>

#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

using Font = Handle<ZeroIsNone<HFONT, &::DeleteObject>>;
using Pen = Handle<ZeroIsNone<HPEN, &::DeleteObject>>;
using GdiBitmap = Handle<ZeroIsNone<HBITMAP, &::DeleteObject>>;

using MemoryDc = Handle<ZeroIsNone<HDC, &::DeleteDC>>;

// Owns the device context of the screen, or of a window with its frame. It is null when the system
// refuses.
class WindowDc {
 public:
  WindowDc() : dc_(::GetDC(nullptr)) {}
  explicit WindowDc(HWND hwnd) : hwnd_(hwnd), dc_(::GetWindowDC(hwnd)) {}
  ~WindowDc() {
    if (dc_ != nullptr) ::ReleaseDC(hwnd_, dc_);
  }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  [[nodiscard]] HDC get() const { return dc_; }

 private:
  HWND hwnd_ = nullptr;
  HDC dc_;
};

// Keeps an object selected into a device context as long as it lives. Both arguments must outlive
// it.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), before_(::SelectObject(dc, object)) {}
  ~Selection() {
    if (before_ != nullptr) ::SelectObject(dc_, before_);
  }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

// Undoes at its end every change that was made to a device context while it lived.
class SavedDc {
 public:
  explicit SavedDc(HDC dc) : dc_(dc), level_(::SaveDC(dc)) {}
  ~SavedDc() {
    if (level_ != 0) ::RestoreDC(dc_, level_);
  }
  SavedDc(const SavedDc&) = delete;
  SavedDc& operator=(const SavedDc&) = delete;

 private:
  HDC dc_;
  int level_;
};

// Returns the colour as 0x00BBGGRR. A system colour is looked up in the user's present scheme.
[[nodiscard]] COLORREF ToColorref(Colour colour);

[[nodiscard]] constexpr RECT ToRect(const Rect& area) {
  return {area.left, area.top, area.Right(), area.Bottom()};
}
[[nodiscard]] constexpr Rect FromRect(const RECT& area) {
  return {static_cast<int>(area.left), static_cast<int>(area.top),
          static_cast<int>(area.right - area.left), static_cast<int>(area.bottom - area.top)};
}

[[nodiscard]] constexpr Point FromPoint(const POINT& at) {
  return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

// Fills `area` of `dc` without making a brush.
void FillArea(HDC dc, const RECT& area, Colour colour);

}  // namespace platform::windows
