#include "platform/windows/widgets/painted_widgets.h"

#include "platform/windows/windows/bare_frame.h"

namespace platform::windows {

Surface::Surface(const WindowClass& window_class, const NewWidget& widget)
    : WidgetOf(widget.drawing, widget.events) {
  Create(window_class, {WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0}, widget.parent, {});
  PublishName(widget.name);
  StartReporting();
}

std::optional<LRESULT> Surface::Handle(const Message& message) {
  if (message.id == WM_NCHITTEST && OnSizingEdge(hwnd(), message.l)) return HTTRANSPARENT;
  return WidgetOf::Handle(message);
}

namespace {

WindowStyle StyleOf(const TextStyle& text) {
  WindowStyle style{WS_CHILD | WS_CLIPSIBLINGS | WS_GROUP | SS_NOTIFY, 0};
  if (text.align == TextAlign::kCentre) style.style |= SS_CENTER;
  if (text.align == TextAlign::kRight) style.style |= SS_RIGHT;
  if (!text.wraps) style.style |= SS_CENTERIMAGE;
  if (!text.mnemonic) style.style |= SS_NOPREFIX;
  if (text.border == Border::kSunken) style.extended = WS_EX_STATICEDGE;
  return style;
}

// As DrawText takes it.
UINT FormatOf(const TextStyle& text, HWND hwnd) {
  UINT format = GdiAlign(text.align);
  format |= text.wraps ? DT_WORDBREAK : DT_SINGLELINE | DT_VCENTER;
  if (!text.mnemonic) return format | DT_NOPREFIX;
  // The user may want the marks only once a key was pressed.
  const LRESULT hidden = ::SendMessageW(hwnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL;
  return hidden != 0 ? format | DT_HIDEPREFIX : format;
}

}  // namespace

TextWidget::TextWidget(const NewWidget& widget, const TextStyle& style)
    : WidgetOf(widget.drawing, widget.events), style_(style) {
  MakeControl(L"STATIC", StyleOf(style), widget);
}

std::optional<LRESULT> TextWidget::Handle(const Message& message) {
  switch (message.id) {
    case WM_NCHITTEST:
      // The control itself would let the mouse through to its parent.
      return OnSizingEdge(hwnd(), message.l) ? HTTRANSPARENT : HTCLIENT;
    case WM_NCPAINT:
      if (style_.border != Border::kSunken) return std::nullopt;
      PaintFrame();
      return 0;
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_UPDATEUISTATE:
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

// The same on all sides: of the system's own frame only two are seen on a bright window.
void TextWidget::PaintFrame() {
  RECT frame{};
  ::GetWindowRect(hwnd(), &frame);
  ::OffsetRect(&frame, -frame.left, -frame.top);
  const HDC dc = ::GetWindowDC(hwnd());
  if (dc == nullptr) return;
  ::FrameRect(dc, &frame, ::GetSysColorBrush(COLOR_BTNSHADOW));
  ::ReleaseDC(hwnd(), dc);
}

void TextWidget::PaintContent(GdiCanvas& canvas) {
  const Size size = canvas.Extent();
  // So that letters do not touch the frame; grows with the screen's dpi as the font does.
  const int room = style_.border == Border::kSunken ? font().height / 4 : 0;
  canvas.FormattedText({room, 0, size.width - 2 * room, size.height}, Text(), font(),
                       Enabled() ? text_colour() : colour::kGrayText, FormatOf(style_, hwnd()));
}

}  // namespace platform::windows
