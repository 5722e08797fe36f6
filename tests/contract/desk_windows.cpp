#include <deque>
#include <stdexcept>
#include <vector>

#include "platform/windows/machine.h"
#include "platform/windows/wide_text.h"
#include "tests/contract/desk.h"
#include "tests/contract/hands_windows.h"
#include "tests/contract/other_program_windows.h"
// After the system's header, which it needs.
#include <shellapi.h>

namespace contract {
namespace {

using platform::windows::ToWide;

constexpr ULONGLONG kAmple = 10000;  // milliseconds
constexpr UINT kTrayMessage = WM_APP + 1;

// What the keyboard does to choose the entry with a text.
class MenuKeys {
 public:
  explicit MenuKeys(std::string_view text) : text_(ToWide(text)) {}

  // The keys that choose the entry from `menu`, after which `selected` of its entries have been
  // passed. False when it is in no submenu either.
  bool Collect(HMENU menu, int selected) {
    int downs = -selected;
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position) {
      if ((::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MF_SEPARATOR) != 0 &&
          ::GetSubMenu(menu, position) == nullptr) {
        continue;
      }
      ++downs;
      const std::size_t before = keys.size();
      keys.insert(keys.end(), static_cast<std::size_t>(downs), VK_DOWN);
      if (TextOf(menu, position) == text_) {
        keys.push_back(VK_RETURN);
        return true;
      }
      if (const HMENU submenu = ::GetSubMenu(menu, position)) {
        keys.push_back(VK_RIGHT);  // onto its first entry
        if (Collect(submenu, 1)) return true;
      }
      keys.resize(before);
    }
    return false;
  }

  std::vector<WPARAM> keys;

 private:
  // Without the shortcut.
  static std::wstring TextOf(HMENU menu, int position) {
    wchar_t text[256] = {};
    ::GetMenuStringW(menu, static_cast<UINT>(position), text, 256, MF_BYPOSITION);
    const std::wstring all = text;
    return all.substr(0, all.find(L'\t'));
  }

  std::wstring text_;
};

BOOL CALLBACK TakeOpenDialog(HWND hwnd, LPARAM found) {
  wchar_t name[16] = {};
  ::GetClassNameW(hwnd, name, 16);
  if (std::wstring_view(name) != L"#32770") return TRUE;
  if (::IsWindowVisible(hwnd) == FALSE || ::IsWindowEnabled(hwnd) == FALSE) return TRUE;
  *reinterpret_cast<HWND*>(found) = hwnd;
  return FALSE;
}

class WindowsDesk final : public Desk {
 public:
  platform::Platform& Platform() override { return machine_.platform(); }

  void MoveMouse(std::string_view name, platform::Point at, bool left_down) override {
    ::SendMessageW(Find(name), WM_MOUSEMOVE, left_down ? MK_LBUTTON : 0, MAKELPARAM(at.x, at.y));
  }
  void DoubleClick(std::string_view name, platform::Point at) override {
    hands_.Click(Find(name), at);
    ::SendMessageW(Find(name), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    ::SendMessageW(Find(name), WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
  }
  void RightClick(std::string_view name, platform::Point at) override {
    ::SendMessageW(Find(name), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    ::SendMessageW(Find(name), WM_RBUTTONUP, 0, MAKELPARAM(at.x, at.y));
  }
  void ClickCloseBox(std::string_view name) override {
    ::SendMessageW(Find(name), WM_SYSCOMMAND, SC_CLOSE, 0);
  }
  void Place(std::string_view name, const platform::Rect& bounds) override {
    ::SetWindowPos(Find(name), nullptr, bounds.left, bounds.top, bounds.width, bounds.height,
                   SWP_NOZORDER | SWP_NOACTIVATE);
  }

  void Press(std::string_view name) override { hands_.Press(name); }
  void Type(std::string_view name, std::string_view text) override { hands_.Type(name, text); }
  void PressKey(std::string_view name, platform::Key key) override { hands_.PressKey(name, key); }
  void Wheel(std::string_view name, int notches) override { hands_.Wheel(name, notches); }
  void Choose(std::string_view name, int index) override { hands_.Choose(name, index); }
  void Tick(std::string_view name, int row) override { hands_.Tick(name, row); }
  void Drag(std::string_view name, int position) override { hands_.Drag(name, position); }

  void PressEnter(std::string_view window) override { hands_.PressIn(window, VK_RETURN); }
  void PressEsc(std::string_view window) override { hands_.PressIn(window, VK_ESCAPE); }
  void PressTab(std::string_view window, bool backwards) override {
    hands_.PressIn(window, VK_TAB, backwards);
  }
  void PressCtrlTab(std::string_view window, bool backwards) override {
    hands_.PressIn(window, VK_TAB, backwards, true);
  }
  void PressAlt(std::string_view window, char letter) override { hands_.PressAlt(window, letter); }
  void PressArrow(std::string_view window, bool backwards) override {
    hands_.PressIn(window, backwards ? VK_UP : VK_DOWN);
  }

  void WillChoose(std::string_view text) override {
    ::SetCursorPos(0, 0);  // a pointer on the menu would choose too
    choosing_ = Platform().timers.Start(20, [this, text = std::string(text)] {
      if (OpenMenu() != nullptr) PressMenuKeys(text);
    });
  }

  // What the shell sends to the icon's window.
  void ClickTray() override {
    ::SendMessageW(Find("TremoluxTray"), kTrayMessage, 0, MAKELPARAM(NIN_SELECT, 1));
  }
  void RightClickTray(platform::Point at) override {
    ::SendMessageW(Find("TremoluxTray"), kTrayMessage, static_cast<WPARAM>(MAKELPARAM(at.x, at.y)),
                   MAKELPARAM(WM_CONTEXTMENU, 1));
  }

  void PointAt(std::string_view name) override {
    const HWND hwnd = Find(name);
    RECT area{};
    ::GetWindowRect(hwnd, &area);
    ::SetCursorPos((area.left + area.right) / 2, (area.top + area.bottom) / 2);
    ::SendMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  }
  void PointAway() override { ::SetCursorPos(0, 0); }

  // What the system says while the user drags a window.
  void Drag(std::string_view name, platform::Point by) override {
    const HWND hwnd = Find(name);
    RECT bounds{};
    ::GetWindowRect(hwnd, &bounds);
    ::SetCursorPos(bounds.left + 50, bounds.top + 20);
    ::SendMessageW(hwnd, WM_ENTERSIZEMOVE, 0, 0);
    ::SetCursorPos(bounds.left + 50 + by.x, bounds.top + 20 + by.y);
    ::OffsetRect(&bounds, by.x, by.y);
    ::SendMessageW(hwnd, WM_MOVING, 0, reinterpret_cast<LPARAM>(&bounds));
    ::SetWindowPos(hwnd, nullptr, bounds.left, bounds.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ::SendMessageW(hwnd, WM_EXITSIZEMOVE, 0, 0);
  }

  void PressKeys(const platform::KeyCombination& keys) override {
    std::vector<WORD> down;
    if (keys.ctrl) down.push_back(VK_CONTROL);
    if (keys.alt) down.push_back(VK_MENU);
    if (keys.shift) down.push_back(VK_SHIFT);
    down.push_back(keys.virtual_key);
    for (const WORD key : down) SendKey(key, 0);
    for (const WORD key : down) SendKey(key, KEYEVENTF_KEYUP);
  }

  platform::WindowId OpenOther(std::string_view title) override {
    return reinterpret_cast<platform::WindowId>(other_.Open(ToWide(title).c_str()));
  }
  void LetOtherHang(bool hang) override { hang ? other_.Hang() : other_.Recover(); }
  void LetOtherTake(const platform::KeyCombination& keys) override {
    other_.Do([&keys] {
      const UINT modifiers = (keys.ctrl ? MOD_CONTROL : 0U) | (keys.alt ? MOD_ALT : 0U) |
                             (keys.shift ? MOD_SHIFT : 0U);
      ::RegisterHotKey(nullptr, 1, modifiers, keys.virtual_key);  // ends with its thread
    });
  }

  bool DialogListens() override { return OpenDialog() != nullptr; }
  void ChooseFile(std::string_view path) override {
    const HWND dialog = OpenDialog();
    // The edit with the name stands in a combo box of its own, in old dialogs alone.
    constexpr int kNameCombo = 0x47C;  // cmb13
    constexpr int kNameEdit = 0x480;   // edt1
    for (const int id : {kNameCombo, kNameEdit}) {
      if (const HWND name = ::GetDlgItem(dialog, id)) {
        ::SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(ToWide(path).c_str()));
      }
    }
    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  }
  void ConfirmColour() override { ::PostMessageW(OpenDialog(), WM_COMMAND, IDOK, 0); }
  void CancelDialog() override { ::PostMessageW(OpenDialog(), WM_COMMAND, IDCANCEL, 0); }

  void Later(std::function<void()> step) override {
    steps_.push_back(std::move(step));
    if (!stepping_) stepping_ = Platform().timers.Start(10, [this] { RunStep(); });
  }

  bool LetHappen(const std::function<bool()>& condition) override {
    const ULONGLONG deadline = ::GetTickCount64() + kAmple;
    const auto wakes_the_loop = Platform().timers.Start(10, [] {});
    Platform().message_loop.RunUntil([&] { return condition() || ::GetTickCount64() > deadline; });
    return condition();
  }

 private:
  static void SendKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    ::SendInput(1, &input, sizeof(input));
  }

  // Null when none is open or the one that is open is disabled.
  static HWND OpenDialog() {
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &TakeOpenDialog, reinterpret_cast<LPARAM>(&found));
    return found;
  }

  static HWND OpenMenu() {
    const HWND menu = ::FindWindowW(L"#32768", nullptr);
    return menu != nullptr && ::IsWindowVisible(menu) ? menu : nullptr;
  }

  // Then leaves whatever menu is still open, because the entry was disabled.
  void PressMenuKeys(const std::string& text) {
    constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
    const HWND menu = OpenMenu();
    MenuKeys keys(text);
    if (!text.empty()) {
      keys.Collect(reinterpret_cast<HMENU>(::SendMessageW(menu, kGetMenu, 0, 0)), 0);
    }
    for (const WPARAM key : keys.keys) ::PostMessageW(menu, WM_KEYDOWN, key, 0);
    // A timer ticks only when the keys have been taken.
    choosing_ = Platform().timers.Start(20, [this] {
      if (const HWND open = OpenMenu()) {
        ::PostMessageW(open, WM_KEYDOWN, VK_ESCAPE, 0);
      } else {
        choosing_.reset();
      }
    });
  }

  void RunStep() {
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    if (steps_.empty()) stepping_.reset();
    step();
  }

  platform::windows::Machine machine_;
  OtherProgram other_;
  Hands hands_{machine_.platform().message_loop};
  std::deque<std::function<void()>> steps_;
  std::unique_ptr<platform::Timer> stepping_;
  std::unique_ptr<platform::Timer> choosing_;
};

}  // namespace

std::unique_ptr<Desk> MakeDesk() { return std::make_unique<WindowsDesk>(); }

}  // namespace contract
