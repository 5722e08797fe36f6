#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

std::optional<LRESULT> NativeControl::HandleNotification(const Message& message) {
  if (message.id < WM_CTLCOLORMSGBOX || message.id > WM_CTLCOLORSTATIC) return std::nullopt;
  const auto dc = reinterpret_cast<HDC>(message.w);
  const COLORREF filling = ToColorref(Background());
  ::SetTextColor(dc, ToColorref(Enabled() ? text_colour() : colour::kGrayText));
  ::SetBkColor(dc, filling);
  ::SetDCBrushColor(dc, filling);
  return reinterpret_cast<LRESULT>(::GetStockObject(DC_BRUSH));
}

std::optional<LRESULT> NativeControl::Handle(const Message& message) {
  if (message.id == WM_DESTROY) ForgetName();
  if (const auto answer = ToControl(message)) return answer;
  return Reporting() ? HandleControl(message) : std::nullopt;
}

std::optional<LRESULT> NativeControl::HandleControl(const Message& message) {
  switch (message.id) {
    case WM_SIZE: {
      const Lifetime::Watch watch(lifetime());
      const LRESULT answer = CallSystem(message);
      if (!watch.Gone()) ReportSize();
      return answer;
    }
    case WM_CONTEXTMENU:
      events().OnContextMenu(ContextMenuPlace(hwnd(), message));
      return 0;
    case WM_MOUSEMOVE:
    case WM_MOUSELEAVE:
    case WM_NCMOUSEMOVE:
    case WM_NCMOUSELEAVE:
    case WM_RBUTTONUP:  // the system makes the wish for a context menu of it
      return ReportBefore(message);
    default:
      // The control makes its click of them; the click is heard first.
      if (IsButtonMessage(message.id)) return ReportBehind(message);
      return std::nullopt;
  }
}

std::optional<LRESULT> NativeControl::ReportBefore(const Message& message) {
  const Lifetime::Watch watch(lifetime());
  ReportMouse(message);
  if (watch.Gone()) return 0;
  return std::nullopt;
}

LRESULT NativeControl::ReportBehind(const Message& message) {
  const Lifetime::Watch watch(lifetime());
  const LRESULT answer = CallSystem(message);
  if (!watch.Gone() && hwnd() != nullptr) ReportMouse(message);
  return answer;
}

}  // namespace platform::windows
