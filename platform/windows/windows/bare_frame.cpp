#include "platform/windows/windows/bare_frame.h"

#include <dwmapi.h>

#include "platform/windows/dpi.h"
#include "platform/windows/drawing/gdi.h"

namespace platform::windows {
namespace {

// The system sends these messages to draw a themed caption and frame when it thinks that they
// changed; its header does not name them.
constexpr UINT kDrawThemedCaption = 0x00AE;
constexpr UINT kDrawThemedFrame = 0x00AF;

// Pixels at 96 dpi.
constexpr int kLine = 1;
constexpr int kGrip = 5;     // from the outer edge; sizes in one direction
constexpr int kCorner = 12;  // along an edge, from a corner; sizes in both directions

void PaintLine(HWND hwnd) {
  RECT outer{};
  ::GetWindowRect(hwnd, &outer);
  const LONG width = outer.right - outer.left;
  const LONG height = outer.bottom - outer.top;
  const LONG line = ScaledFor(hwnd, kLine);
  const WindowDc dc(hwnd);
  if (dc.get() == nullptr) return;
  const RECT sides[] = {{0, 0, width, line},
                        {0, height - line, width, height},
                        {0, line, line, height - line},
                        {width - line, line, width, height - line}};
  for (const RECT& side : sides) FillArea(dc.get(), side, colour::kButtonShadow);
}

// Returns -1 at the low end of an axis, 1 at the high end, and 0 between them.
int End(LONG at, LONG low, LONG high, int reach) {
  if (at < low + reach) return -1;
  return at >= high - reach ? 1 : 0;
}

LRESULT EdgeCode(int x, int y) {
  static constexpr LRESULT kCodes[3][3] = {{HTTOPLEFT, HTTOP, HTTOPRIGHT},
                                           {HTLEFT, 0, HTRIGHT},
                                           {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
  return kCodes[y + 1][x + 1];
}

LRESULT SizingEdge(HWND hwnd, LPARAM screen_point, const SizeLimits& limits) {
  const POINT at{static_cast<short>(LOWORD(screen_point)),
                 static_cast<short>(HIWORD(screen_point))};
  RECT outer{};
  ::GetWindowRect(hwnd, &outer);
  if (!::PtInRect(&outer, at)) return 0;
  const int grip = ScaledFor(hwnd, kGrip);
  const int corner = ScaledFor(hwnd, kCorner);
  int x = End(at.x, outer.left, outer.right, grip);
  int y = End(at.y, outer.top, outer.bottom, grip);
  if (x != 0 && y == 0) y = End(at.y, outer.top, outer.bottom, corner);
  if (y != 0 && x == 0) x = End(at.x, outer.left, outer.right, corner);
  // An axis on which nothing can change has no edges.
  if (limits.largest.width > 0 && limits.smallest.width == limits.largest.width) x = 0;
  if (limits.largest.height > 0 && limits.smallest.height == limits.largest.height) y = 0;
  return EdgeCode(x, y);
}

}  // namespace

bool OnSizingEdge(HWND child, LPARAM screen_point) {
  return ::SendMessageW(::GetAncestor(child, GA_ROOT), kAskSizingEdge, 0, screen_point) != 0;
}

void BareFrame::TakeOver(HWND hwnd) {
  const DWORD disabled = DWMNCRP_DISABLED;
  ::DwmSetWindowAttribute(hwnd, DWMWA_NCRENDERING_POLICY, &disabled, sizeof(disabled));
}

std::optional<LRESULT> BareFrame::Handle(HWND hwnd, const Message& message,
                                         const SizeLimits& limits) {
  switch (message.id) {
    case WM_NCCALCSIZE: {
      // The parameter has two forms, and the area comes first in both.
      auto* area = reinterpret_cast<RECT*>(message.l);
      const int line = ScaledFor(hwnd, kLine);
      ::InflateRect(area, -line, -line);
      return 0;
    }
    case WM_NCPAINT:
      PaintLine(hwnd);
      return 0;
    case WM_NCACTIVATE:  // nothing of the frame shows whether the window is active
      return TRUE;
    case kDrawThemedCaption:
    case kDrawThemedFrame:
      return 0;
    case WM_NCHITTEST: {
      const LRESULT edge = SizingEdge(hwnd, message.l, limits);
      return edge != 0 ? edge : HTCLIENT;
    }
    case kAskSizingEdge:
      return SizingEdge(hwnd, message.l, limits);
    default:
      return std::nullopt;
  }
}

}  // namespace platform::windows
