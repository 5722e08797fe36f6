// The frame of a sizeable window without a caption.
//
// The system's own sizing frame has no place for a window without a caption on Windows 10 and
// later: it leaves a white strip above the client area. So the frame is one pixel (at 96 dpi) drawn
// here, and a few pixels of the inside along the edges size the window.
#pragma once

#include "platform/geometry.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// Outer sizes, in pixels; a largest size of zero leaves both to the system.
struct SizeLimits {
  Size smallest;
  Size largest;
};

// Sent to a top window to learn what a screen point (packed as in WM_NCHITTEST) is: the code of a
// sizing edge (HTLEFT ...), or 0.
inline constexpr UINT kAskSizingEdge = WM_APP + 1;

// For the hit test of a child: whether the point sizes the window that the child is in. The child
// then lets the mouse through.
[[nodiscard]] bool OnSizingEdge(HWND child, LPARAM screen_point);

class BareFrame {
 public:
  // Keeps the system from drawing a frame of its own around `hwnd`.
  static void TakeOver(HWND hwnd);

  // The answer to a message that concerns the frame.
  [[nodiscard]] static std::optional<LRESULT> Handle(HWND hwnd, const Message& message,
                                                     const SizeLimits& limits);
};

}  // namespace platform::windows
