#include "platform/windows/windows/dialog_keys.h"

#include <algorithm>
#include <vector>

#include "platform/windows/widgets/button_widget.h"
#include "platform/windows/widgets/tabs_widget.h"
#include "platform/windows/windows/top_window.h"

namespace platform::windows {
namespace {

enum class Direction { kForward, kBackward };

Direction FromShift() {
  return ::GetKeyState(VK_SHIFT) < 0 ? Direction::kBackward : Direction::kForward;
}

TopWindow* DialogOf(HWND inside) {
  auto* top = dynamic_cast<TopWindow*>(NativeWindow::Of(::GetAncestor(inside, GA_ROOT)));
  return top != nullptr && top->TakesDialogKeys() ? top : nullptr;
}

bool Holds(HWND outer, HWND inner) { return outer == inner || ::IsChild(outer, inner); }

// The widgets of a window that the user can reach, in order of creation, children behind their
// parent.
void Collect(HWND parent, std::vector<WidgetWindow*>& widgets) {
  for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    const LONG_PTR style = ::GetWindowLongPtrW(child, GWL_STYLE);
    WidgetWindow* widget = WidgetWindow::Of(child);
    if (widget == nullptr || (style & WS_VISIBLE) == 0 || (style & WS_DISABLED) != 0) continue;
    widgets.push_back(widget);
    Collect(child, widgets);
  }
}

std::vector<WidgetWindow*> WidgetsOf(HWND top) {
  std::vector<WidgetWindow*> widgets;
  Collect(top, widgets);
  return widgets;
}

bool IsRadio(HWND hwnd) {
  const WidgetWindow* widget = WidgetWindow::Of(hwnd);
  return widget != nullptr && widget->Role() == KeyRole::kRadio;
}

// The first of the radio buttons that exclude each other.
HWND GroupOf(HWND radio) {
  HWND first = radio;
  for (HWND before = ::GetWindow(first, GW_HWNDPREV); before != nullptr && IsRadio(before);
       before = ::GetWindow(first, GW_HWNDPREV)) {
    first = before;
  }
  return first;
}

// Those of `widgets` in the group of one of them.
std::vector<WidgetWindow*> Group(const std::vector<WidgetWindow*>& widgets, HWND radio) {
  std::vector<WidgetWindow*> group;
  for (WidgetWindow* widget : widgets) {
    if (widget->Role() == KeyRole::kRadio && GroupOf(widget->hwnd()) == GroupOf(radio)) {
      group.push_back(widget);
    }
  }
  return group;
}

bool Checked(const WidgetWindow* button) {
  return ::SendMessageW(button->hwnd(), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

// Whether Tab stops at it: of a group of radio buttons only at the one with the keyboard, else the
// checked one, else the first.
bool IsStop(const std::vector<WidgetWindow*>& widgets, const WidgetWindow* widget) {
  if (widget->Role() == KeyRole::kNone) return false;
  if (widget->Role() != KeyRole::kRadio) return true;
  const std::vector<WidgetWindow*> group = Group(widgets, widget->hwnd());
  for (const auto& chosen :
       {std::find_if(group.begin(), group.end(), [](auto* radio) { return radio->HasFocus(); }),
        std::find_if(group.begin(), group.end(), Checked)}) {
    if (chosen != group.end()) return *chosen == widget;
  }
  return group.front() == widget;
}

std::vector<WidgetWindow*> StopsOf(const std::vector<WidgetWindow*>& widgets) {
  std::vector<WidgetWindow*> stops;
  std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(stops),
               [&widgets](auto* widget) { return IsStop(widgets, widget); });
  return stops;
}

// The neighbour of `from` in a ring; null without others.
WidgetWindow* Neighbour(const std::vector<WidgetWindow*>& ring, const WidgetWindow* from,
                        Direction direction) {
  if (ring.empty()) return nullptr;
  const auto at = std::find(ring.begin(), ring.end(), from);
  if (direction == Direction::kForward) {
    return at == ring.end() || at + 1 == ring.end() ? ring.front() : *(at + 1);
  }
  return at == ring.begin() || at == ring.end() ? ring.back() : *(at - 1);
}

void ShowMarks(HWND top) {
  ::SendMessageW(top, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS), 0);
}

void GoTo(WidgetWindow* widget) {
  if (widget == nullptr) return;
  FocusOn(widget->hwnd());
  widget->Reached();
}

bool Tab(HWND top) {
  ShowMarks(top);
  const std::vector<WidgetWindow*> stops = StopsOf(WidgetsOf(top));
  // From behind: a stop that holds others, as tabs do, stands before them.
  const auto at =
      std::find_if(stops.rbegin(), stops.rend(), [](auto* stop) { return stop->HasFocus(); });
  GoTo(Neighbour(stops, at != stops.rend() ? *at : nullptr, FromShift()));
  return true;
}

bool MoveInGroup(HWND top, HWND focus, Direction direction) {
  ShowMarks(top);
  const std::vector<WidgetWindow*> group = Group(WidgetsOf(top), focus);
  WidgetWindow* next = Neighbour(group, WidgetWindow::Of(focus), direction);
  if (next == nullptr) return true;
  FocusOn(next->hwnd());
  ::SendMessageW(next->hwnd(), BM_CLICK, 0, 0);
  return true;
}

// The tabs that the keyboard is in, or the first ones.
TabsWidget* TabsFor(HWND top) {
  TabsWidget* first = nullptr;
  for (WidgetWindow* widget : WidgetsOf(top)) {
    auto* tabs = dynamic_cast<TabsWidget*>(widget);
    if (tabs == nullptr) continue;
    if (widget->HasFocus()) return tabs;
    if (first == nullptr) first = tabs;
  }
  return first;
}

bool StepTabs(HWND top) {
  TabsWidget* tabs = TabsFor(top);
  if (tabs == nullptr) return false;
  tabs->Step(FromShift() == Direction::kForward ? 1 : -1);
  return true;
}

// Null when Enter presses nothing.
ButtonWidget* WhatEnterPresses(HWND top) {
  ButtonWidget* found = nullptr;
  for (WidgetWindow* widget : WidgetsOf(top)) {
    auto* button = dynamic_cast<ButtonWidget*>(widget);
    if (button == nullptr || button->Role() != KeyRole::kPush) continue;
    if (button->HasFocus()) return button;
    if (button->IsDefault()) found = button;
  }
  return found;
}

bool Enter(HWND top) {
  if (ButtonWidget* button = WhatEnterPresses(top)) button->Press();
  return true;
}

bool Arrow(HWND top, HWND focus, Direction direction) {
  return IsRadio(focus) && MoveInGroup(top, focus, direction);
}

// What Enter and Esc do when nobody else wants them. True when they are done with.
bool EndKey(TopWindow& top, const MSG& message) {
  if (WidgetWindow* widget = WidgetWindow::Of(message.hwnd)) {
    const HWND hwnd = top.hwnd();
    const KeyTaker taker = widget->TakerOf(message.wParam);
    if (taker == KeyTaker::kWindow) return false;
    if (taker == KeyTaker::kNobody || DialogOf(hwnd) != &top) return true;
  }
  if (message.wParam == VK_RETURN) return Enter(top.hwnd());
  top.CancelKey();
  return true;
}

bool KeyDown(TopWindow& top, const MSG& message) {
  switch (message.wParam) {
    case VK_TAB:
      return ::GetKeyState(VK_CONTROL) < 0 ? StepTabs(top.hwnd()) : Tab(top.hwnd());
    case VK_RETURN:
    case VK_ESCAPE:
      return EndKey(top, message);
    case VK_UP:
    case VK_LEFT:
      return Arrow(top.hwnd(), message.hwnd, Direction::kBackward);
    case VK_DOWN:
    case VK_RIGHT:
      return Arrow(top.hwnd(), message.hwnd, Direction::kForward);
    default:
      return false;
  }
}

wchar_t Upper(wchar_t letter) {
  ::CharUpperBuffW(&letter, 1);
  return letter;
}

// The letter behind the single "&" of a text, in upper case; 0 without one.
wchar_t MarkedKey(HWND hwnd) {
  wchar_t text[256] = {};
  ::GetWindowTextW(hwnd, text, 256);
  for (const wchar_t* at = text; *at != L'\0'; ++at) {
    if (*at != L'&') continue;
    ++at;
    if (*at != L'&') return Upper(*at);
  }
  return L'\0';
}

// What the key of a widget does: a button is pressed, a text leads to the control behind it.
void Activate(const std::vector<WidgetWindow*>& widgets, WidgetWindow* widget) {
  if (widget->Role() != KeyRole::kNone) {
    FocusOn(widget->hwnd());
    ::SendMessageW(widget->hwnd(), BM_CLICK, 0, 0);
    return;
  }
  const auto behind = std::find_if(std::find(widgets.begin(), widgets.end(), widget), widgets.end(),
                                   [&widgets](auto* next) { return IsStop(widgets, next); });
  if (behind != widgets.end()) GoTo(*behind);
}

// Of several with the same letter, the one behind the keyboard.
bool MarkedLetter(HWND top, wchar_t letter) {
  std::vector<WidgetWindow*> widgets = WidgetsOf(top);
  const std::vector<WidgetWindow*> in_order = widgets;
  const auto focused = std::find_if(widgets.begin(), widgets.end(),
                                    [](auto* widget) { return widget->hwnd() == ::GetFocus(); });
  if (focused != widgets.end()) std::rotate(widgets.begin(), focused + 1, widgets.end());
  const auto marked = std::find_if(widgets.begin(), widgets.end(), [letter](auto* widget) {
    return widget->MarksKey() && MarkedKey(widget->hwnd()) == letter;
  });
  if (marked == widgets.end()) return false;
  ShowMarks(top);
  Activate(in_order, *marked);
  return true;
}

bool WantsLetters(HWND hwnd) {
  return (::SendMessageW(hwnd, WM_GETDLGCODE, 0, 0) & DLGC_WANTCHARS) != 0;
}

}  // namespace

bool HandledAsDialogKey(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  TopWindow* top = DialogOf(message.hwnd);
  if (top == nullptr || ::IsWindowEnabled(top->hwnd()) == FALSE) return false;
  const HWND hwnd = top->hwnd();
  const auto letter = static_cast<wchar_t>(message.wParam);
  switch (message.message) {
    case WM_KEYDOWN:
      return KeyDown(*top, message);
    case WM_SYSKEYDOWN:
      if (message.wParam == VK_MENU) ShowMarks(hwnd);
      return false;
    case WM_SYSCHAR:
      return MarkedLetter(hwnd, Upper(letter));
    case WM_CHAR:
      return !WantsLetters(message.hwnd) && MarkedLetter(hwnd, Upper(letter));
    default:
      return false;
  }
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

void FocusFirst(HWND top) {
  const std::vector<WidgetWindow*> stops = StopsOf(WidgetsOf(top));
  if (!stops.empty()) GoTo(stops.front());
}

void PassFocusOn(HWND leaving) {
  const HWND focus = ::GetFocus();
  if (focus == nullptr || leaving == nullptr || !Holds(leaving, focus)) return;
  const TopWindow* top = DialogOf(leaving);
  if (top == nullptr || top->hwnd() == leaving) return;
  const std::vector<WidgetWindow*> widgets = WidgetsOf(top->hwnd());
  const auto begin = std::find_if(widgets.begin(), widgets.end(),
                                  [leaving](auto* widget) { return widget->hwnd() == leaving; });
  if (begin == widgets.end()) return;
  std::vector<WidgetWindow*> following(begin, widgets.end());
  following.insert(following.end(), widgets.begin(), begin);
  for (WidgetWindow* next : following) {
    if (Holds(leaving, next->hwnd()) || !IsStop(widgets, next)) continue;
    GoTo(next);
    return;
  }
}

void ShowWhatEnterPresses(HWND inside) {
  const TopWindow* top = DialogOf(inside);
  if (top == nullptr) return;
  const ButtonWidget* pressed = WhatEnterPresses(top->hwnd());
  for (WidgetWindow* widget : WidgetsOf(top->hwnd())) {
    if (auto* button = dynamic_cast<ButtonWidget*>(widget)) {
      button->ShowThickFrame(button == pressed);
    }
  }
}

}  // namespace platform::windows
