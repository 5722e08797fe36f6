#include "platform/windows/windows/mouse.h"

#include <utility>

#include "platform/windows/drawing/gdi.h"

namespace platform::windows {
namespace {

Point PointOf(LPARAM l) { return {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))}; }

MouseEvent EventOf(const Message& message, MouseButton button) {
  return {PointOf(message.l), button, (message.w & MK_LBUTTON) != 0};
}

bool InsideClient(HWND hwnd, Point at) {
  RECT client{};
  ::GetClientRect(hwnd, &client);
  return at.x >= 0 && at.y >= 0 && at.x < client.right && at.y < client.bottom;
}

void TrackLeave(HWND hwnd, bool on_frame) {
  TRACKMOUSEEVENT track{};
  track.cbSize = sizeof(track);
  track.dwFlags = on_frame ? TME_LEAVE | TME_NONCLIENT : TME_LEAVE;
  track.hwndTrack = hwnd;
  ::TrackMouseEvent(&track);
}

void LetGo(HWND hwnd) {
  if (::GetCapture() == hwnd) ::ReleaseCapture();
}

}  // namespace

void Mouse::Report(HWND hwnd, const Message& message, WidgetEvents& events, Lifetime& lifetime) {
  switch (message.id) {
    case WM_MOUSEMOVE:
      ReportMove(hwnd, message, events, lifetime);
      break;
    case WM_NCMOUSEMOVE:
      if (Enter(hwnd, true)) events.OnMouseEnter();
      break;
    case WM_MOUSELEAVE:
    case WM_NCMOUSELEAVE:
      if (Leave(hwnd)) events.OnMouseLeave();
      break;
    case WM_LBUTTONDOWN:
      if (capture_ == Capture::kHere) ::SetCapture(hwnd);
      pressed_ = true;
      events.OnMouseDown(EventOf(message, MouseButton::kLeft));
      break;
    case WM_LBUTTONDBLCLK:
      if (capture_ == Capture::kHere) ::SetCapture(hwnd);
      events.OnDoubleClick(EventOf(message, MouseButton::kLeft));
      break;
    case WM_LBUTTONUP:
      ReportLeftUp(hwnd, message, events, lifetime);
      break;
    // Only the left button has a double click of its own.
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      events.OnMouseDown(EventOf(message, MouseButton::kRight));
      break;
    case WM_RBUTTONUP:
      events.OnMouseUp(EventOf(message, MouseButton::kRight));
      break;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      events.OnMouseDown(EventOf(message, MouseButton::kMiddle));
      break;
    case WM_MBUTTONUP:
      events.OnMouseUp(EventOf(message, MouseButton::kMiddle));
      break;
    default:
      break;
  }
}

void Mouse::ReportLeftUp(HWND hwnd, const Message& message, WidgetEvents& events,
                         Lifetime& lifetime) {
  const MouseEvent event = EventOf(message, MouseButton::kLeft);
  const bool clicked = std::exchange(pressed_, false) && InsideClient(hwnd, event.at);
  if (capture_ == Capture::kHere) {
    LetGo(hwnd);
    const Lifetime::Watch watch(lifetime);
    if (clicked) events.OnClicked();
    if (watch.Gone()) return;
  }
  events.OnMouseUp(event);
}

void Mouse::ReportMove(HWND hwnd, const Message& message, WidgetEvents& events,
                       Lifetime& lifetime) {
  const MouseEvent event = EventOf(message, MouseButton::kNone);
  if (!event.left_down) pressed_ = false;  // another window got the release
  // While the button is held, moves come from outside as well.
  if (InsideClient(hwnd, event.at) && Enter(hwnd, false)) {
    const Lifetime::Watch watch(lifetime);
    events.OnMouseEnter();
    if (watch.Gone()) return;
  }
  events.OnMouseMove(event);
}

bool Mouse::Enter(HWND hwnd, bool on_frame) {
  if (inside_) return false;
  inside_ = true;
  TrackLeave(hwnd, on_frame);
  return true;
}

bool Mouse::Leave(HWND hwnd) {
  POINT pointer{};
  if (inside_ && ::GetCursorPos(&pointer) && ::WindowFromPoint(pointer) == hwnd) {
    ::ScreenToClient(hwnd, &pointer);
    TrackLeave(hwnd, !InsideClient(hwnd, FromPoint(pointer)));
    return false;
  }
  return std::exchange(inside_, false);
}

Point ContextMenuPlace(HWND hwnd, const Message& message) {
  const Point at = PointOf(message.l);
  if (at != Point{-1, -1}) return at;
  RECT client{};
  ::GetClientRect(hwnd, &client);
  POINT middle{client.right / 2, client.bottom / 2};
  ::ClientToScreen(hwnd, &middle);
  return FromPoint(middle);
}

}  // namespace platform::windows
