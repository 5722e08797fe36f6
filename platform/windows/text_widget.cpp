#include "platform/windows/text_widget.h"

#include "platform/windows/bare_frame.h"

namespace platform::windows {

TextWidget::TextWidget(HWND parent, std::string_view name, Drawing& drawing, WidgetEvents& events)
    : WidgetOf(drawing, events) {
  CreateControl(
      L"STATIC",
      {WS_CHILD | WS_CLIPSIBLINGS | SS_CENTER | SS_CENTERIMAGE | SS_NOPREFIX | SS_NOTIFY, 0},
      parent);
  PublishName(name);
  StartReporting();
}

std::optional<LRESULT> TextWidget::Handle(const Message& message) {
  switch (message.id) {
    case WM_NCHITTEST:
      // The control itself would let the mouse through to its parent.
      return OnSizingEdge(hwnd(), message.l) ? HTTRANSPARENT : HTCLIENT;
    case WM_SETTEXT:
    case WM_ENABLE:
      return WithoutControl(message);
    default:
      return WidgetOf::Handle(message);
  }
}

LRESULT TextWidget::WithoutControl(const Message& message) {
  const LRESULT answer = ::DefWindowProcW(hwnd(), message.id, message.w, message.l);
  Invalidate();
  return answer;
}

void TextWidget::PaintContent(Canvas& canvas) {
  const Size size = canvas.Extent();
  canvas.Text({0, 0, size.width, size.height}, Text(), font(),
              Enabled() ? text_colour() : colour::kGrayText, TextAlign::kCentre);
}

}  // namespace platform::windows
