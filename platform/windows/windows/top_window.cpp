#include "platform/windows/windows/top_window.h"

#include <algorithm>
#include <utility>

#include "platform/windows/dpi.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows/dialog_keys.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {
namespace {

// The system menu's "move", begun by the caption: 61458.
constexpr WPARAM kMoveByCaption = SC_MOVE | HTCAPTION;
static_assert(kMoveByCaption == 61458);

// Under Wine a window manager may offer the focus to each window that appears, in milliseconds from
// then. Whether the window takes it, it is asked with a click on a menu bar, which none has here.
constexpr ULONGLONG kOffersFocusWithin = 2000;

POINT PointIn(LPARAM l) { return {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))}; }

// Where a scroll bar is asked to go.
int Wanted(HWND hwnd, WORD request, const Scroll& scroll) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_TRACKPOS;
  switch (request) {
    case SB_LINEUP:
      return scroll.position - scroll.line;
    case SB_LINEDOWN:
      return scroll.position + scroll.line;
    case SB_PAGEUP:
      return scroll.position - scroll.page;
    case SB_PAGEDOWN:
      return scroll.position + scroll.page;
    case SB_TOP:
      return 0;
    case SB_BOTTOM:
      return scroll.content;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return ::GetScrollInfo(hwnd, SB_VERT, &info) != FALSE ? info.nTrackPos : scroll.position;
    default:
      return scroll.position;
  }
}

WindowStyle StyleOf(const TopWindowParams& params) {
  constexpr DWORD kAll = WS_POPUP | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
  constexpr DWORD kCaption = WS_CAPTION | WS_SYSMENU;
  WindowStyle style;
  switch (params.frame) {
    case Frame::kSizeableTool:
      style = {kAll | kCaption | WS_THICKFRAME, WS_EX_TOOLWINDOW};
      break;
    case Frame::kTool:
      style = {kAll | kCaption, WS_EX_TOOLWINDOW};
      break;
    case Frame::kDialog:
      style = {kAll | kCaption, WS_EX_DLGMODALFRAME};
      break;
    case Frame::kHint:
      // Only a layered window lets the mouse through to the windows of other programs.
      return {kAll, WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT |
                        WS_EX_LAYERED};
  }
  // A caption is a border and a dialog frame; without the latter the border stays.
  if (params.bare_popup) style.style &= ~static_cast<DWORD>(WS_DLGFRAME);
  return style;
}

}  // namespace

TopWindow::TopWindow(const WindowClass& window_class, const TopWindowParams& params, HWND owner,
                     Drawing& drawing, TopWindowEvents& events)
    : WidgetOf(drawing, events),
      events_(events),
      frame_(params.frame),
      draws_frame_(params.frame == Frame::kSizeableTool && params.bare_popup),
      takes_dialog_keys_(params.frame != Frame::kHint && !params.bare_popup) {
  Create(window_class, StyleOf(params), owner, ToWide(params.caption));
  if (draws_frame_) BareFrame::TakeOver(hwnd());
  if (frame_ == Frame::kHint) ::SetLayeredWindowAttributes(hwnd(), 0, 255, LWA_ALPHA);
  // The system has given a sizeable window its own smallest size, and the frame is to be taken
  // anew now that the messages arrive here.
  ::SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_FRAMECHANGED);
  reported_bounds_ = Bounds();
  StartReporting();
}

void TopWindow::SetVisible(bool visible) {
  if (visible && !Visible()) {
    Show(Activation::kLeaveFocus);
  } else {
    if (!visible) GiveForegroundBack(hwnd(), std::exchange(foreground_before_, nullptr));
    WidgetOf::SetVisible(visible);
  }
}

void TopWindow::Show(Activation activation) {
  // Not ShowWindow to activate: the first call of a process follows the shortcut that started it.
  if (activation == Activation::kLeaveFocus) {
    declines_focus_until_ = ::GetTickCount64() + kOffersFocusWithin;
    ::ShowWindow(hwnd(), SW_SHOWNOACTIVATE);
    return;
  }
  if (!Visible()) {
    last_focus_ = nullptr;
    foreground_before_ = ::GetForegroundWindow();
    // Marks of keys and of the keyboard's place are shown as the user likes it.
    ::SendMessageW(hwnd(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0), 0);
  }
  ::SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
  Raise();
}

void TopWindow::SetTopmost(bool topmost) {
  const Rect own = Bounds();
  ::SetWindowPos(hwnd(), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, own.left, own.top, own.width,
                 own.height, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

bool TopWindow::Topmost() const {
  return (::GetWindowLongPtrW(hwnd(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

void TopWindow::SetSizeLimits(Size smallest, Size largest) { limits_ = {smallest, largest}; }

void TopWindow::SetClientSize(Size client) {
  // By what it has too much or too little; of a window without an inside nothing can be learned.
  for (int attempt = 0; attempt < 2 && ClientSize() != client; ++attempt) {
    const Rect outer = Bounds();
    const Size inner = ClientSize();
    SetBounds({outer.left, outer.top, outer.width + client.width - inner.width,
               outer.height + client.height - inner.height});
  }
}

void TopWindow::SetScroll(const Scroll& scroll) {
  if (scroll == scroll_) return;
  scroll_ = scroll;
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = std::max(0, scroll.content - 1);
  info.nPage = static_cast<UINT>(scroll.page);
  info.nPos = scroll.position;
  ::SetScrollInfo(hwnd(), SB_VERT, &info, TRUE);
  ::ShowScrollBar(hwnd(), SB_VERT, scroll.content > scroll.page);
}

void TopWindow::ShowKeyMarks() {
  ::SendMessageW(hwnd(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS),
                 0);
}

void TopWindow::FocusMoved(HWND control) {
  RECT area{};
  ::GetWindowRect(control, &area);
  ::MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT*>(&area), 2);
  events_.OnFocusMoved(FromRect(area));
}

void TopWindow::BeginDrag() {
  // Moves of the mouse may be delivered while the drag goes on, and each of them asks again.
  if (dragging_) return;
  dragging_ = true;
  const Lifetime::Watch watch(lifetime());
  FollowPointer();
  if (watch.Gone()) return;
  ::ReleaseCapture();
  ::SendMessageW(hwnd(), WM_SYSCOMMAND, kMoveByCaption, 0);
  if (watch.Gone()) return;
  dragging_ = false;
  pressed_.reset();  // the release went to the system
  grip_.reset();
}

// The drag is begun by the first move, which may be a long one; the system, or a window manager,
// takes hold of the window only then, and it would trail behind the pointer by so much.
void TopWindow::FollowPointer() {
  POINT pointer{};
  if (!pressed_ || !::GetCursorPos(&pointer)) return;
  grip_ = pointer;
  POINT pressed = *pressed_;
  ::ClientToScreen(hwnd(), &pressed);
  Rect bounds = Bounds();
  bounds.left += static_cast<int>(pointer.x - pressed.x);
  bounds.top += static_cast<int>(pointer.y - pressed.y);
  SetBounds(bounds);
}

void TopWindow::HearMouse(HWND hwnd, const Message& message) {
  const bool moves = message.id == WM_MOUSEMOVE;
  if (message.id == WM_LBUTTONDOWN) {
    pressed_ = PointIn(message.l);
    ::MapWindowPoints(hwnd, this->hwnd(), &*pressed_, 1);
  } else if (message.id == WM_LBUTTONUP || (moves && (message.w & MK_LBUTTON) == 0)) {
    pressed_.reset();
  }
}

void TopWindow::SetAlpha(std::uint8_t alpha) { SetWindowOpacity(hwnd(), alpha); }

bool TopWindow::UnderPointer() const {
  POINT pointer{};
  if (!::GetCursorPos(&pointer)) return false;
  return ::GetAncestor(::WindowFromPoint(pointer), GA_ROOT) == hwnd();
}

void TopWindow::Raise() {
  if (::IsIconic(hwnd())) ::ShowWindow(hwnd(), SW_RESTORE);
  ::SetForegroundWindow(::GetLastActivePopup(hwnd()));
}

int TopWindow::Dpi() const { return DpiOfWindow(hwnd()); }

std::optional<LRESULT> TopWindow::Handle(const Message& message) {
  if (const auto answer = HandleKind(message)) return answer;
  if (Reporting()) {
    if (const auto answer = HandleWindow(message)) return answer;
    if (const auto answer = HandleSystem(message)) return answer;
    if (const auto answer = HandleDrag(message)) return answer;
    if (const auto answer = HandleScroll(message)) return answer;
  }
  return WidgetOf::Handle(message);
}

std::optional<LRESULT> TopWindow::HandleKind(const Message& message) {
  if (frame_ == Frame::kHint) {
    if (message.id == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
    if (message.id == WM_NCHITTEST) return HTTRANSPARENT;
  }
  if (message.id == WM_MOUSEACTIVATE && LOWORD(message.l) == HTMENU && DeclinesFocus()) {
    return MA_NOACTIVATE;
  }
  // F10 or Alt: without a menu bar the system would wait for a second key.
  if (draws_frame_ && message.id == WM_SYSCOMMAND && (message.w & 0xFFF0U) == SC_KEYMENU &&
      message.l == 0) {
    events_.OnContextMenu(ContextMenuPlace(hwnd(), {WM_CONTEXTMENU, 0, -1}));
    return 0;
  }
  if (message.id == WM_GETMINMAXINFO) {
    LimitSize(*reinterpret_cast<MINMAXINFO*>(message.l));
    return 0;
  }
  return draws_frame_ ? BareFrame::Handle(hwnd(), message, limits_) : std::nullopt;
}

bool TopWindow::DeclinesFocus() {
  return ::GetTickCount64() < std::exchange(declines_focus_until_, 0);
}

std::optional<LRESULT> TopWindow::HandleWindow(const Message& message) {
  switch (message.id) {
    case WM_CLOSE:
      events_.OnClose();  // the system would destroy the window
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(message.w) == WA_INACTIVE) RememberFocus();
      return std::nullopt;
    case WM_SETFOCUS:
      RestoreFocus();
      return 0;
    case WM_WINDOWPOSCHANGED:
      return HandlePlaced(message);
    case WM_DPICHANGED:
      return HandleDpi(message);
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> TopWindow::HandleSystem(const Message& message) {
  switch (message.id) {
    case WM_DISPLAYCHANGE:
      events_.OnDisplayChange();
      return 0;
    case WM_POWERBROADCAST:
      if (message.w == PBT_APMRESUMEAUTOMATIC) events_.OnResume();
      return TRUE;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (message.w != FALSE) events_.OnEndSession();
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
      // What is painted in system colours looks different now.
      ::RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN);
      events_.OnSettingChange();
      // A taskbar that grows or moves may cover the window.
      if (message.id == WM_SETTINGCHANGE && message.w == SPI_SETWORKAREA) events_.OnDisplayChange();
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> TopWindow::HandleDrag(const Message& message) {
  switch (message.id) {
    case WM_ENTERSIZEMOVE:
      drag_.Begin(Bounds(), grip_);
      return std::nullopt;
    case WM_EXITSIZEMOVE:
      EndDrag();
      return 0;
    case WM_MOVING: {
      auto* proposed = reinterpret_cast<RECT*>(message.l);
      Rect bounds = drag_.Moving(FromRect(*proposed));
      events_.OnMoving(bounds);
      *proposed = ToRect(bounds);
      return TRUE;
    }
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> TopWindow::HandleScroll(const Message& message) {
  if (scroll_.content <= scroll_.page) return std::nullopt;
  if (message.id == WM_VSCROLL && message.l == 0) {
    events_.OnScroll(Wanted(hwnd(), LOWORD(message.w), scroll_));
    return 0;
  }
  if (message.id == WM_MOUSEWHEEL) {
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int notch =
        lines == WHEEL_PAGESCROLL ? scroll_.page : static_cast<int>(lines) * scroll_.line;
    events_.OnScroll(scroll_.position -
                     ::MulDiv(static_cast<short>(HIWORD(message.w)), notch, WHEEL_DELTA));
    return 0;
  }
  return std::nullopt;
}

void TopWindow::EndDrag() {
  const Lifetime::Watch watch(lifetime());
  const Rect bounds = Bounds();
  if (drag_.MovedByOthers(bounds)) {
    Rect wanted = bounds;
    events_.OnMoving(wanted);
    if (watch.Gone()) return;
    if (wanted != bounds) SetBounds(wanted);
    if (watch.Gone()) return;
  }
  drag_.End();
  events_.OnDragEnded();
}

void TopWindow::RememberFocus() {
  const HWND focus = ::GetFocus();
  if (focus != nullptr && ::IsChild(hwnd(), focus)) last_focus_ = focus;
}

void TopWindow::RestoreFocus() {
  if (!takes_dialog_keys_) return;
  if (::IsChild(hwnd(), last_focus_) && IsUsable(last_focus_)) {
    ::SetFocus(last_focus_);
  } else {
    events_.OnFocusWanted();
  }
}

LRESULT TopWindow::HandlePlaced(const Message& message) {
  const Lifetime::Watch watch(lifetime());
  const LRESULT answer = CallSystem(message);  // reports the size of the client area
  if (watch.Gone() || hwnd() == nullptr || ::IsIconic(hwnd())) return answer;
  const Rect bounds = Bounds();
  if (bounds == reported_bounds_) return answer;
  reported_bounds_ = bounds;
  events_.OnPlaced();
  return answer;
}

LRESULT TopWindow::HandleDpi(const Message& message) {
  const Lifetime::Watch watch(lifetime());
  // The width of the frame depends on the resolution, also where the size does not change.
  ::SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  if (watch.Gone()) return 0;
  events_.OnDpiChanged(FromRect(*reinterpret_cast<const RECT*>(message.l)));
  return 0;
}

void TopWindow::LimitSize(MINMAXINFO& info) const {
  if (!Reporting()) info.ptMinTrackSize = {0, 0};  // it is made without a size
  if (limits_.largest == Size{}) return;
  info.ptMinTrackSize = {limits_.smallest.width, limits_.smallest.height};
  info.ptMaxTrackSize = {limits_.largest.width, limits_.largest.height};
}

}  // namespace platform::windows
