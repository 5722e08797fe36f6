#include "platform/windows/widgets/widget_window.h"

#include "platform/windows/wide_text.h"
#include "platform/windows/widgets/accessible.h"
#include "platform/windows/widgets/native_control.h"
#include "platform/windows/windows/dialog_keys.h"

namespace platform::windows {
namespace {

// A begun painting of a window, ended when this goes.
class Painting {
 public:
  explicit Painting(HWND hwnd) : hwnd_(hwnd), dc_(::BeginPaint(hwnd, &painting_)) {}
  ~Painting() { ::EndPaint(hwnd_, &painting_); }
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;

  [[nodiscard]] HDC dc() const { return dc_; }
  [[nodiscard]] const RECT& area() const { return painting_.rcPaint; }

 private:
  HWND hwnd_;
  PAINTSTRUCT painting_{};
  HDC dc_;
};

// The control that a message to its parent is about; null for a message of another kind.
HWND ControlOf(const Message& message) {
  switch (message.id) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<HWND>(message.l);
    case WM_NOTIFY:
      return reinterpret_cast<const NMHDR*>(message.l)->hwndFrom;
    case WM_DRAWITEM:
      return reinterpret_cast<const DRAWITEMSTRUCT*>(message.l)->hwndItem;
    default:
      return nullptr;
  }
}

}  // namespace

HWND WidgetWindow::Of(Widget& widget) { return dynamic_cast<WidgetWindow&>(widget).hwnd(); }

void WidgetWindow::SetText(std::string_view text) {
  // The same text again would repaint and be read out again.
  if (Text() == text) return;
  ::SetWindowTextW(hwnd(), ToWide(text).c_str());
  // The system tells screen readers of another name; what a painted widget shows is its value.
  ::NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, hwnd(), OBJID_CLIENT, CHILDID_SELF);
}

std::string WidgetWindow::Text() const { return FromWide(WideText()); }

std::wstring WidgetWindow::WideText() const {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(hwnd())) + 1, L'\0');
  const int length = ::GetWindowTextW(hwnd(), text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void WidgetWindow::SetBounds(const Rect& bounds) {
  ::SetWindowPos(hwnd(), nullptr, bounds.left, bounds.top, bounds.width, bounds.height,
                 SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE);
}

Rect WidgetWindow::Bounds() const {
  RECT area{};
  ::GetWindowRect(hwnd(), &area);
  const HWND parent = ::GetAncestor(hwnd(), GA_PARENT);
  if (parent != nullptr && parent != ::GetDesktopWindow()) {
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
  }
  return FromRect(area);
}

Size WidgetWindow::ClientSize() const {
  RECT area{};
  ::GetClientRect(hwnd(), &area);
  return {static_cast<int>(area.right), static_cast<int>(area.bottom)};
}

void WidgetWindow::SetVisible(bool visible) { ::ShowWindow(hwnd(), visible ? SW_SHOWNA : SW_HIDE); }

bool WidgetWindow::Visible() const {
  return (::GetWindowLongPtrW(hwnd(), GWL_STYLE) & WS_VISIBLE) != 0;
}

void WidgetWindow::SetEnabled(bool enabled) { ::EnableWindow(hwnd(), enabled); }

bool WidgetWindow::Enabled() const { return ::IsWindowEnabled(hwnd()) != 0; }

void WidgetWindow::SetFont(const FontStyle& font) {
  if (native_font_ && font == font_) return;
  font_ = font;
  SharedFont made = drawing_.fonts.Get(font);
  if (!made) return;
  ::SendMessageW(hwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(made->get()), FALSE);
  native_font_ = std::move(made);  // only now: until here the control used the one before
  Invalidate();
}

void WidgetWindow::SetColours(Colour text, Colour background) {
  if (text == text_colour_ && background == background_) return;
  text_colour_ = text;
  background_ = background;
  Invalidate();
}

void WidgetWindow::Focus() {
  if (IsUsable(hwnd())) FocusOn(hwnd());
}

bool WidgetWindow::HasFocus() const {
  const HWND focus = ::GetFocus();
  return focus != nullptr && (focus == hwnd() || ::IsChild(hwnd(), focus));
}

void WidgetWindow::Invalidate() {
  // Without a window the call would repaint the whole desktop.
  if (hwnd() != nullptr) ::InvalidateRect(hwnd(), nullptr, TRUE);
}

Point WidgetWindow::ToScreen(Point client) const {
  POINT at{client.x, client.y};
  ::ClientToScreen(hwnd(), &at);
  return FromPoint(at);
}

void WidgetWindow::MakeControl(const wchar_t* control, const WindowStyle& style,
                               const NewWidget& widget) {
  CreateControl(control, style, widget.parent);
  PublishName(widget.name);
  StartReporting();
}

void WidgetWindow::StartReporting() {
  reported_size_ = ClientSize();
  reporting_ = true;
}

void WidgetWindow::ReportMouse(const Message& message) {
  if (WidgetWindow* top = Of(::GetAncestor(hwnd(), GA_ROOT))) top->HearMouse(hwnd(), message);
  mouse_.Report(hwnd(), message, events_, lifetime());
}

void WidgetWindow::PublishName(std::string_view name) {
  published_name_ = ToWide(name);
  if (!published_name_.empty()) ::SetPropW(hwnd(), published_name_.c_str(), ThisModule());
}

void WidgetWindow::ForgetName() {
  if (hwnd() == nullptr || published_name_.empty()) return;
  ::RemovePropW(hwnd(), published_name_.c_str());
}

std::optional<LRESULT> WidgetWindow::ToControl(const Message& message) {
  if (auto* control = dynamic_cast<NativeControl*>(NativeWindow::Of(ControlOf(message)))) {
    return control->HandleNotification(message);
  }
  return std::nullopt;
}

std::optional<LRESULT> WidgetWindow::Handle(const Message& message) {
  switch (message.id) {
    case WM_ERASEBKGND:
      return 1;  // painting covers everything; erasing first would flicker
    case WM_PAINT:
      Paint();
      return 0;
    case WM_PRINTCLIENT: {
      const Size size = ClientSize();
      PaintOn(reinterpret_cast<HDC>(message.w), {0, 0, size.width, size.height});
      return 0;
    }
    case WM_DESTROY:
      ForgetName();
      return std::nullopt;
    case WM_GETOBJECT:
      return AnswerReader(*this, message);
    default:
      if (const auto answer = ToControl(message)) return answer;
      return reporting_ ? HandleReports(message) : std::nullopt;
  }
}

std::optional<LRESULT> WidgetWindow::HandleReports(const Message& message) {
  switch (message.id) {
    case WM_SIZE:
      Invalidate();
      ReportSize();
      return 0;
    case WM_CONTEXTMENU:
      events_.OnContextMenu(ContextMenuPlace(hwnd(), message));
      return 0;
    case WM_RBUTTONUP:  // the system makes the wish for a context menu of it
    case WM_NCMOUSEMOVE:
    case WM_NCMOUSELEAVE:
      ReportMouse(message);
      return std::nullopt;
    default:
      if (message.id != WM_MOUSEMOVE && message.id != WM_MOUSELEAVE &&
          !IsButtonMessage(message.id)) {
        return std::nullopt;
      }
      ReportMouse(message);
      return 0;
  }
}

void WidgetWindow::ReportSize() {
  const Size size = ClientSize();
  if (size == reported_size_ || ::IsIconic(hwnd())) return;
  reported_size_ = size;
  events_.OnResize(size);
}

void WidgetWindow::Paint() {
  const Painting painting(hwnd());
  PaintOn(painting.dc(), painting.area());
}

void WidgetWindow::PaintOn(HDC target, const RECT& shown) {
  drawing_.back_buffer.Compose(target, {}, ClientSize(), shown, background_,
                               [this](GdiCanvas& canvas) { PaintContent(canvas); });
}

}  // namespace platform::windows
