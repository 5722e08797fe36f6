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

// A message that asks a top window about a screen point (packed as in WM_NCHITTEST). The answer is
// the code of the sizing edge at the point (HTLEFT ...), or 0.
inline constexpr UINT kAskSizingEdge = WM_APP + 1;

// Returns, for the hit test of a child, whether the point lies on a sizing edge of the child's top
// window. The child then lets the mouse through.
[[nodiscard]] bool OnSizingEdge(HWND child, LPARAM screen_point);

class BareFrame {
 public:
  // Keeps the system from drawing a frame of its own around `hwnd`.
  static void TakeOver(HWND hwnd);

  // Returns the answer to a message that concerns the frame, or nullopt for any other message.
  [[nodiscard]] static std::optional<LRESULT> Handle(HWND hwnd, const Message& message,
                                                     const SizeLimits& limits);
};

}  // namespace platform::windows
