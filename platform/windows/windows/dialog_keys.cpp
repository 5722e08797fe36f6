#include "platform/windows/windows/dialog_keys.h"

#include <optional>
#include <string>

#include "platform/windows/wide_text.h"
#include "platform/windows/widgets/widget_window.h"
#include "platform/windows/windows/top_window.h"

namespace platform::windows {
namespace {

using Kind = DialogKey::Kind;

TopWindow* DialogOf(HWND inside) {
  auto* top = dynamic_cast<TopWindow*>(NativeWindow::Of(::GetAncestor(inside, GA_ROOT)));
  return top != nullptr && top->TakesDialogKeys() ? top : nullptr;
}

bool IsHeld(int key) { return ::GetKeyState(key) < 0; }

bool WantsLetters(HWND hwnd) {
  return (::SendMessageW(hwnd, WM_GETDLGCODE, 0, 0) & DLGC_WANTCHARS) != 0;
}

std::optional<DialogKey> KeyDown(WPARAM key) {
  switch (key) {
    case VK_TAB:
      return DialogKey{IsHeld(VK_CONTROL) ? Kind::kControlTab : Kind::kTab, IsHeld(VK_SHIFT)};
    case VK_RETURN:
      return DialogKey{Kind::kEnter};
    case VK_ESCAPE:
      return DialogKey{Kind::kEscape};
    case VK_UP:
    case VK_LEFT:
      return DialogKey{Kind::kArrow, true};
    case VK_DOWN:
    case VK_RIGHT:
      return DialogKey{Kind::kArrow, false};
    default:
      return std::nullopt;
  }
}

std::optional<DialogKey> KeyOf(const MSG& message) {
  const bool with_alt = message.message == WM_SYSCHAR;
  if (message.message == WM_KEYDOWN) return KeyDown(message.wParam);
  if (!with_alt && (message.message != WM_CHAR || WantsLetters(message.hwnd))) return std::nullopt;
  const std::wstring letter(1, static_cast<wchar_t>(message.wParam));
  return DialogKey{Kind::kLetter, false, FromWide(letter)};
}

// What the control with the keyboard makes of Enter and Esc, which it hears of first.
KeyTaker TakerOf(const MSG& message, const DialogKey& key) {
  if (key.kind != Kind::kEnter && key.kind != Kind::kEscape) return KeyTaker::kDialog;
  WidgetWindow* widget = WidgetWindow::Of(message.hwnd);
  return widget != nullptr ? widget->TakerOf(message.wParam) : KeyTaker::kDialog;
}

}  // namespace

bool HandledAsDialogKey(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  TopWindow* top = DialogOf(message.hwnd);
  if (top == nullptr || ::IsWindowEnabled(top->hwnd()) == FALSE) return false;
  if (message.message == WM_SYSKEYDOWN && message.wParam == VK_MENU) top->ShowKeyMarks();
  const std::optional<DialogKey> key = KeyOf(message);
  if (!key) return false;
  const HWND hwnd = top->hwnd();
  const KeyTaker taker = TakerOf(message, *key);
  if (taker == KeyTaker::kWindow) return false;
  if (taker == KeyTaker::kNobody || DialogOf(hwnd) != top) return true;
  return top->Press(*key);
}

bool IsUsable(HWND hwnd) {
  if (hwnd == nullptr || ::IsWindowVisible(hwnd) == FALSE) return false;
  for (HWND each = hwnd; each != nullptr; each = ::GetAncestor(each, GA_PARENT)) {
    if (::IsWindowEnabled(each) == FALSE) return false;
  }
  return true;
}

void FocusOn(HWND control) {
  ::SetFocus(control);
  if (TopWindow* top = DialogOf(control)) top->FocusMoved(control);
}

}  // namespace platform::windows
