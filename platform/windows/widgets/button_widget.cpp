#include "platform/windows/widgets/button_widget.h"

#include <utility>

namespace platform::windows {
namespace {

bool IsRadio(HWND hwnd) {
  const auto* button = dynamic_cast<const ButtonWidget*>(WidgetWindow::Of(hwnd));
  return button != nullptr && button->Kind() == ButtonKind::kRadio;
}

HWND LastChild(HWND parent) {
  const HWND first = ::GetWindow(parent, GW_CHILD);
  return first != nullptr ? ::GetWindow(first, GW_HWNDLAST) : nullptr;
}

std::optional<Key> KeyOf(WPARAM virtual_key) {
  switch (virtual_key) {
    case VK_UP:
      return Key::kUp;
    case VK_DOWN:
      return Key::kDown;
    case VK_LEFT:
      return Key::kLeft;
    case VK_RIGHT:
      return Key::kRight;
    case VK_HOME:
      return Key::kHome;
    case VK_END:
      return Key::kEnd;
    default:
      return std::nullopt;
  }
}

DWORD StyleOf(ButtonKind kind, HWND parent) {
  // A radio button behind another one is of its group: of a group the first one alone has the flag.
  constexpr DWORD kOneOf = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP;
  constexpr DWORD kBegins = kOneOf | WS_GROUP;
  switch (kind) {
    case ButtonKind::kCheck:
      return kBegins | BS_AUTOCHECKBOX | BS_MULTILINE;
    case ButtonKind::kRadio:
      return (IsRadio(LastChild(parent)) ? kOneOf : kBegins) | BS_AUTORADIOBUTTON | BS_MULTILINE;
    case ButtonKind::kGroup:
      return (kBegins & ~static_cast<DWORD>(WS_TABSTOP)) | WS_CLIPCHILDREN | BS_GROUPBOX;
    case ButtonKind::kPainted:
      return kBegins | BS_OWNERDRAW;
    case ButtonKind::kPush:
      break;
  }
  return kBegins | BS_PUSHBUTTON;
}

}  // namespace

ButtonWidget::ButtonWidget(const NewWidget& widget, ButtonKind kind)
    : WidgetOf(widget), kind_(kind) {
  MakeControl(L"BUTTON", {StyleOf(kind, widget.parent), 0}, widget);
}

void ButtonWidget::SetChecked(bool checked) {
  const Quiet quiet(*this);
  Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool ButtonWidget::Checked() const { return Send(BM_GETCHECK) == BST_CHECKED; }

void ButtonWidget::SetDefault(bool is_default) {
  if (kind_ != ButtonKind::kPush) return;
  const LONG_PTR style = is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  if ((::GetWindowLongPtrW(hwnd(), GWL_STYLE) & BS_TYPEMASK) == style) return;
  Send(BM_SETSTYLE, static_cast<WPARAM>(style), TRUE);
}

std::optional<LRESULT> ButtonWidget::HandleNotification(const Message& message) {
  if (message.id == WM_COMMAND) {
    if (HIWORD(message.w) == BN_CLICKED && !IsQuiet()) Clicked();
    return 0;
  }
  if (message.id == WM_DRAWITEM) {
    DrawFace(*reinterpret_cast<const DRAWITEMSTRUCT*>(message.l));
    return TRUE;
  }
  return WidgetOf::HandleNotification(message);
}

void ButtonWidget::Clicked() {
  // A radio button tells a click also when the keyboard only came to it.
  if (kind_ == ButtonKind::kRadio && !std::exchange(chosen_, false)) return;
  events().OnClicked();
}

std::optional<LRESULT> ButtonWidget::Handle(const Message& message) {
  if (kind_ == ButtonKind::kGroup) {
    if (const auto answer = HandleGroup(message)) return answer;
  }
  switch (message.id) {
    case BM_SETCHECK:
      if (!IsQuiet() && message.w == BST_CHECKED && !Checked()) chosen_ = true;
      break;
    case WM_KEYDOWN: {
      const std::optional<Key> key = KeyOf(message.w);
      if (kind_ != ButtonKind::kPainted || !key || !Reporting()) break;
      events().OnKey(*key);
      return 0;  // the system's button does nothing with them
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
      const bool push = kind_ == ButtonKind::kPush || kind_ == ButtonKind::kPainted;
      if (!push || !Reporting()) break;
      const LRESULT answer = CallSystem(message);
      events().OnFocusChanged();
      return answer;
    }
    default:
      break;
  }
  return WidgetOf::Handle(message);
}

// The system leaves the inside of a group to its parent, which does not paint under its children.
// So it is painted here, in one piece.
std::optional<LRESULT> ButtonWidget::HandleGroup(const Message& message) {
  switch (message.id) {
    case WM_ERASEBKGND:
    case WM_PAINT:
    case WM_PRINTCLIENT:
      return WidgetWindow::Handle(message);
    case WM_SETTEXT:
    case WM_ENABLE: {
      const LRESULT answer = ::DefWindowProcW(hwnd(), message.id, message.w, message.l);
      Invalidate();
      return answer;
    }
    case WM_NCHITTEST:
      return HTCLIENT;  // else it lets the mouse through to its parent, and there is no hint
    case WM_SIZE: {
      Invalidate();
      return std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

void ButtonWidget::PaintContent(GdiCanvas& canvas) {
  CallSystem({WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT});
}

void ButtonWidget::DrawFace(const DRAWITEMSTRUCT& item) {
  const Rect place = FromRect(item.rcItem);
  const RECT whole{0, 0, place.width, place.height};
  drawing().back_buffer.Compose(
      item.hDC, {place.left, place.top}, {place.width, place.height}, whole, Background(),
      [&](GdiCanvas& canvas) {
        events().OnPaint(canvas);
        if ((item.itemState & ODS_FOCUS) == 0 || (item.itemState & ODS_NOFOCUSRECT) != 0) return;
        RECT mark = whole;
        ::InflateRect(&mark, -3, -3);
        ::SetTextColor(canvas.dc(), RGB(0, 0, 0));
        ::SetBkColor(canvas.dc(), RGB(255, 255, 255));
        ::DrawFocusRect(canvas.dc(), &mark);
      });
}

}  // namespace platform::windows
