#include "tests/contract/hands_windows.h"

#include <stdexcept>
#include <string>

#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace contract {
namespace {

using platform::windows::ToWide;

struct Search {
  std::wstring name;
  HWND found = nullptr;
};

std::wstring ClassOf(HWND hwnd) {
  wchar_t name[256] = {};
  ::GetClassNameW(hwnd, name, 256);
  return name;
}

BOOL CALLBACK LookAt(HWND hwnd, LPARAM search_pointer) {
  auto& search = *reinterpret_cast<Search*>(search_pointer);
  if (search.name == ClassOf(hwnd) || ::GetPropW(hwnd, search.name.c_str()) != nullptr) {
    search.found = hwnd;
  } else {
    ::EnumChildWindows(hwnd, &LookAt, search_pointer);
  }
  return search.found == nullptr;
}

void Notify(HWND control, UINT message, int code) {
  ::SendMessageW(::GetParent(control), message, MAKEWPARAM(0, code),
                 reinterpret_cast<LPARAM>(control));
}

platform::Point MiddleOf(const RECT& area) {
  return {static_cast<int>(area.left + area.right) / 2,
          static_cast<int>(area.top + area.bottom) / 2};
}

// The keys Shift and Ctrl as this thread sees them, while this lives.
class Held {
 public:
  Held(bool shift, bool ctrl) {
    ::GetKeyboardState(before_);
    BYTE state[256];
    ::GetKeyboardState(state);
    state[VK_SHIFT] = shift ? 0x80 : 0;
    state[VK_CONTROL] = ctrl ? 0x80 : 0;
    ::SetKeyboardState(state);
  }
  ~Held() { ::SetKeyboardState(before_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  BYTE before_[256] = {};
};

int VirtualKey(platform::Key key) {
  switch (key) {
    case platform::Key::kUp:
      return VK_UP;
    case platform::Key::kDown:
      return VK_DOWN;
    case platform::Key::kPageUp:
      return VK_PRIOR;
    case platform::Key::kPageDown:
      return VK_NEXT;
    case platform::Key::kLeft:
      return VK_LEFT;
    case platform::Key::kRight:
      return VK_RIGHT;
    case platform::Key::kHome:
      return VK_HOME;
    case platform::Key::kEnd:
      return VK_END;
    case platform::Key::kDelete:
      return VK_DELETE;
    case platform::Key::kEnter:
      break;
  }
  return VK_RETURN;
}

}  // namespace

HWND Find(std::string_view name) {
  Search search{ToWide(name)};
  ::EnumThreadWindows(::GetCurrentThreadId(), &LookAt, reinterpret_cast<LPARAM>(&search));
  if (search.found == nullptr) throw std::out_of_range("no window is " + std::string(name));
  return search.found;
}

HWND Hands::Reach(std::string_view name) {
  const HWND hwnd = Find(name);
  if (::IsWindowVisible(hwnd) == FALSE) return nullptr;
  for (HWND each = hwnd; each != nullptr; each = ::GetAncestor(each, GA_PARENT)) {
    if (::IsWindowEnabled(each) == FALSE) return nullptr;
  }
  return hwnd;
}

void Hands::Post(HWND hwnd, UINT message, WPARAM w, LPARAM l) {
  ::PostMessageW(hwnd, message, w, l);
  (void)loop_.ProcessPending();
}

void Hands::Click(HWND hwnd, platform::Point at) {
  ::SendMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
  ::SendMessageW(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

void Hands::Press(std::string_view name) {
  const HWND hwnd = Reach(name);
  if (hwnd == nullptr) return;
  RECT client{};
  ::GetClientRect(hwnd, &client);
  Click(hwnd, MiddleOf(client));
}

void Hands::Type(std::string_view name, std::string_view text) {
  const HWND hwnd = Reach(name);
  if (hwnd == nullptr) return;
  if (::GetFocus() != hwnd) ::SetFocus(hwnd);
  DWORD from = 0;
  DWORD to = 0;
  ::SendMessageW(hwnd, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  if (from == to) ::SendMessageW(hwnd, EM_SETSEL, 0x7FFFFFFF, 0x7FFFFFFF);  // to the end
  for (const wchar_t unit : ToWide(text)) Post(hwnd, WM_CHAR, unit, 1);
}

void Hands::PressKey(std::string_view name, platform::Key key) {
  const HWND hwnd = Reach(name);
  if (hwnd == nullptr) return;
  if (::GetFocus() != hwnd) ::SetFocus(hwnd);
  Post(hwnd, WM_KEYDOWN, static_cast<WPARAM>(VirtualKey(key)), 1);
}

void Hands::Wheel(std::string_view name, int notches) {
  const HWND hwnd = Reach(name);
  if (hwnd != nullptr) {
    Post(hwnd, WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, notches * WHEEL_DELTA)));
  }
}

void Hands::Choose(std::string_view name, int index) {
  const HWND hwnd = Reach(name);
  if (hwnd == nullptr) return;
  ::SetFocus(hwnd);
  const std::wstring kind = ClassOf(hwnd);
  const auto row = static_cast<WPARAM>(index);
  RECT area{};
  if (kind == L"ListBox") {
    ::SendMessageW(hwnd, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&area));
    Click(hwnd, MiddleOf(area));
  } else if (kind == L"ComboBox") {
    ::SendMessageW(hwnd, CB_SETCURSEL, row, 0);
    Notify(hwnd, WM_COMMAND, CBN_SELCHANGE);
  } else if (kind == WC_LISTVIEWW) {
    LVITEMW state{};
    state.state = state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    ::SendMessageW(hwnd, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&state));
  } else if (kind == WC_TREEVIEWW) {
    Post(hwnd, WM_KEYDOWN, VK_HOME, 1);
    for (int step = 0; step < index; ++step) Post(hwnd, WM_KEYDOWN, VK_DOWN, 1);
  } else if (kind == WC_TABCONTROLW) {
    ::SendMessageW(hwnd, TCM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&area));
    Click(hwnd, MiddleOf(area));
  } else {
    throw std::logic_error(std::string(name) + " is no list");
  }
}

void Hands::Tick(std::string_view name, int row) {
  const HWND hwnd = Reach(name);
  if (hwnd == nullptr) return;
  ::SetFocus(hwnd);
  LVITEMW state{};
  state.state = state.stateMask = LVIS_FOCUSED;
  ::SendMessageW(hwnd, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&state));
  Post(hwnd, WM_KEYDOWN, VK_SPACE, 1);
}

void Hands::Drag(std::string_view name, int position) {
  const HWND hwnd = Reach(name);
  if (hwnd == nullptr) return;
  ::SendMessageW(hwnd, TBM_SETPOS, TRUE, position);
  Notify(hwnd, WM_HSCROLL, 0);
  ::SendMessageW(::GetParent(hwnd), WM_HSCROLL, TB_ENDTRACK, reinterpret_cast<LPARAM>(hwnd));
}

HWND Hands::FocusIn(std::string_view window) {
  const HWND top = Reach(window);
  const HWND focus = ::GetFocus();
  return top != nullptr && ::IsChild(top, focus) ? focus : top;
}

void Hands::PressIn(std::string_view window, int key, bool shift, bool ctrl) {
  const HWND hwnd = FocusIn(window);
  if (hwnd == nullptr) return;
  const Held held(shift, ctrl);
  Post(hwnd, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
}

void Hands::PressAlt(std::string_view window, char letter) {
  constexpr LPARAM kAltIsDown = LPARAM{1} << 29;
  const HWND hwnd = FocusIn(window);
  if (hwnd != nullptr) Post(hwnd, WM_SYSCHAR, static_cast<WPARAM>(letter), kAltIsDown | 1);
}

}  // namespace contract
