#include "platform/windows/widgets/edit_widget.h"

#include <algorithm>

#include "platform/windows/drawing/gdi.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

WindowStyle StyleOf(const EditStyle& edit, DWORD common) {
  WindowStyle style{common, 0};
  switch (edit.kind) {
    case EditKind::kLine:
      style.style |= ES_AUTOHSCROLL;
      break;
    case EditKind::kPassword:
      style.style |= ES_AUTOHSCROLL | ES_PASSWORD;
      break;
    case EditKind::kMemo:
      style.style |= ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
      if (edit.border == Border::kSunken) style.style |= WS_VSCROLL;
      break;
  }
  if (edit.border == Border::kSunken) style.extended = WS_EX_CLIENTEDGE;
  return style;
}

bool IsHigh(wchar_t unit) { return IS_HIGH_SURROGATE(unit); }
bool IsLow(wchar_t unit) { return IS_LOW_SURROGATE(unit); }

// Where the character before `end` begins; a line break is one character.
std::size_t Before(const std::wstring& text, std::size_t end) {
  if (end < 2) return 0;
  const bool pair = (IsHigh(text[end - 2]) && IsLow(text[end - 1])) ||
                    (text[end - 2] == L'\r' && text[end - 1] == L'\n');
  return end - (pair ? 2 : 1);
}

int Characters(const std::wstring& text) {
  int count = 0;
  for (std::size_t end = text.size(); end > 0; end = Before(text, end)) ++count;
  return count;
}

// Line breaks as the control has them, and as everyone else has.
std::string WithReturns(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

std::string WithoutReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

// The height of a line in pixels, or 0 before the edit has its font.
LONG LineHeight(HWND edit) {
  const auto font = reinterpret_cast<HFONT>(::SendMessageW(edit, WM_GETFONT, 0, 0));
  const WindowDc dc(edit);
  if (font == nullptr || dc.get() == nullptr) return 0;
  const Selection selected(dc.get(), font);
  TEXTMETRICW metrics{};
  return ::GetTextMetricsW(dc.get(), &metrics) != FALSE ? metrics.tmHeight : 0;
}

}  // namespace

EditWidget::EditWidget(const NewWidget& widget, const EditStyle& style)
    : WidgetOf(widget), kind_(style.kind) {
  MakeControl(L"EDIT", StyleOf(style, kStopChild), widget);
  if (kind_ == EditKind::kPassword) Send(EM_SETPASSWORDCHAR, L'x');
  Send(EM_SETLIMITTEXT, 0);  // a new one has a limit
}

void EditWidget::SetText(std::string_view text) {
  const Quiet quiet(*this);
  if (kind_ == EditKind::kMemo) {
    if (Text() != text) ::SetWindowTextW(hwnd(), ToWide(WithReturns(text)).c_str());
  } else {
    WidgetOf::SetText(text);
  }
  known_ = WideText();
}

std::string EditWidget::Text() const {
  return kind_ == EditKind::kMemo ? WithoutReturns(WidgetOf::Text()) : WidgetOf::Text();
}

void EditWidget::SetMaxLength(int characters) {
  max_length_ = characters;
  // The system counts UTF-16 units, of which a character has up to two; the rest is done by hand.
  Send(EM_SETLIMITTEXT, 2 * static_cast<WPARAM>(characters));
}

void EditWidget::SetReadOnly(bool read_only) {
  read_only_ = read_only;
  Send(EM_SETREADONLY, read_only ? TRUE : FALSE);
  RepaintWithFrame();
}

void EditWidget::SetFont(const FontStyle& font) {
  WidgetOf::SetFont(font);
  constexpr UINT kFrameOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
  ::SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0, kFrameOnly | SWP_FRAMECHANGED);
}

void EditWidget::SetEnabled(bool enabled) {
  WidgetOf::SetEnabled(enabled);
  RepaintWithFrame();
}

void EditWidget::SetColours(Colour text, Colour background) {
  WidgetOf::SetColours(text, background);
  RepaintWithFrame();
}

void EditWidget::RepaintWithFrame() {
  ::RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE);
}

LRESULT EditWidget::FitClientToText(const Message& message) {
  const LRESULT answer = CallSystem(message);
  // The place of the client area comes first in both forms of the message.
  auto& client = *reinterpret_cast<RECT*>(message.l);
  const LONG height = LineHeight(hwnd());
  const LONG above = (client.bottom - client.top - height) / 2;
  if (height == 0 || above <= 0) return answer;
  client.top += above;
  client.bottom = client.top + height;
  return answer;
}

LRESULT EditWidget::PaintFrame(const Message& message) {
  const LRESULT answer = CallSystem(message);
  RECT client{};
  ::GetClientRect(hwnd(), &client);
  ::MapWindowPoints(hwnd(), nullptr, reinterpret_cast<POINT*>(&client), 2);
  RECT whole{};
  ::GetWindowRect(hwnd(), &whole);
  ::OffsetRect(&client, -whole.left, -whole.top);
  const LONG edge = client.left;  // as wide on each side
  const WindowDc dc(hwnd());
  if (dc.get() == nullptr) return answer;
  ::SetDCBrushColor(dc.get(), ToColorref(Background()));
  const auto filling = static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
  const RECT above{edge, edge, client.right, client.top};
  const RECT below{edge, client.bottom, client.right, whole.bottom - whole.top - edge};
  ::FillRect(dc.get(), &above, filling);
  ::FillRect(dc.get(), &below, filling);
  return answer;
}

void EditWidget::SelectAll() { Send(EM_SETSEL, 0, -1); }

KeyTaker EditWidget::TakerOf(WPARAM key) {
  if (key != VK_RETURN) return KeyTaker::kDialog;
  if (events().OnKey(Key::kEnter)) return KeyTaker::kNobody;
  return kind_ == EditKind::kMemo ? KeyTaker::kWindow : KeyTaker::kDialog;
}

Colour EditWidget::Background() const {
  const bool fixed = read_only_ || !Enabled();
  return fixed && background() == colour::kWindow ? colour::kButtonFace : background();
}

std::optional<LRESULT> EditWidget::HandleNotification(const Message& message) {
  if (message.id != WM_COMMAND) return WidgetOf::HandleNotification(message);
  if (HIWORD(message.w) == EN_CHANGE && !IsQuiet()) Changed();
  return 0;
}

void EditWidget::Changed() {
  const std::wstring text = CutToLimit(WideText());
  // The first half of a character stands alone until the second one follows.
  DWORD caret = 0;
  Send(EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
  const bool half = caret > 0 && caret <= text.size() && IsHigh(text[caret - 1]) &&
                    (caret == text.size() || !IsLow(text[caret]));
  if (half || text == known_) return;
  known_ = text;
  events().OnChanged();
}

// What goes are the last characters before the caret.
std::wstring EditWidget::CutToLimit(const std::wstring& text) {
  const int allowed = std::max(max_length_, Characters(known_));  // the code may have set more
  int excess = Characters(text) - allowed;
  if (max_length_ == 0 || excess <= 0) return text;
  DWORD caret = 0;
  Send(EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
  std::size_t from = std::min<std::size_t>(caret, text.size());
  for (; excess > 0; --excess) from = Before(text, from);
  const Quiet quiet(*this);
  Send(EM_SETSEL, from, static_cast<LPARAM>(caret));
  Send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
  return WideText();
}

std::optional<LRESULT> EditWidget::Handle(const Message& message) {
  switch (message.id) {
    case WM_NCCALCSIZE:
      return kind_ == EditKind::kMemo ? std::nullopt : std::optional(FitClientToText(message));
    case WM_NCPAINT:
      return kind_ == EditKind::kMemo ? std::nullopt : std::optional(PaintFrame(message));
    case WM_NCHITTEST:  // a click above or below the text is one on the text
      return kind_ == EditKind::kMemo ? std::nullopt : std::optional<LRESULT>(HTCLIENT);
    case WM_KEYDOWN:
    case WM_CHAR: {
      const Lifetime::Watch watch(lifetime());
      if (Reporting() && Keeps(message)) return 0;
      return watch.Gone() ? std::optional<LRESULT>(0) : std::nullopt;
    }
    case WM_MOUSEWHEEL:
      if (kind_ == EditKind::kMemo || !Reporting()) return std::nullopt;
      Turned(message);
      return 0;
    case WM_KILLFOCUS: {
      const Lifetime::Watch watch(lifetime());
      const LRESULT answer = CallSystem(message);
      if (!watch.Gone() && Reporting()) events().OnFocusLost();
      return answer;
    }
    case WM_CONTEXTMENU:
      return std::nullopt;  // the system has one of its own for it
    default:
      return WidgetOf::Handle(message);
  }
}

bool EditWidget::Keeps(const Message& message) {
  if (message.id == WM_CHAR) {
    constexpr WPARAM kFirstLetter = 0x20;
    constexpr WPARAM kDelete = 0x7F;  // of Ctrl and Backspace
    if (message.w < kFirstLetter || message.w == kDelete) return false;
    return events().OnCharacter(static_cast<char16_t>(message.w));
  }
  switch (message.w) {
    case VK_UP:
      return events().OnKey(Key::kUp);
    case VK_DOWN:
      return events().OnKey(Key::kDown);
    case VK_PRIOR:
      return events().OnKey(Key::kPageUp);
    case VK_NEXT:
      return events().OnKey(Key::kPageDown);
    default:
      return false;
  }
}

void EditWidget::Turned(const Message& wheel) {
  wheel_rest_ += static_cast<short>(HIWORD(wheel.w));
  const int notches = wheel_rest_ / WHEEL_DELTA;
  wheel_rest_ -= notches * WHEEL_DELTA;
  if (notches != 0) events().OnWheel(notches);
}

}  // namespace platform::windows
