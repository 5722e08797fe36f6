#include "tests/desktop/driver/menu.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "platform/windows/system_error.h"
#include "platform/windows/system_handles.h"
#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/program.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"
#include "tests/desktop/spy/menu_spy.h"

namespace desktop {
namespace {

// The open menus of a process.
std::vector<HWND> MenuWindows(DWORD process) {
  std::vector<HWND> menus = VisibleTops(process);
  std::erase_if(menus, [](HWND window) { return !HasClass(window, L"#32768"); });
  return menus;
}

// What a spy in the program's thread sees in the menu.
std::string Spy(HWND menu) {
  const HMODULE module = ::LoadLibraryW((OwnFolder() + kSpyModule).c_str());
  const HHOOK hook = ::SetWindowsHookExW(
      WH_CALLWNDPROC, platform::windows::Function<HOOKPROC>(module, kSpyProcedure), module,
      ::GetWindowThreadProcessId(menu, nullptr));
  if (hook == nullptr) platform::windows::ThrowSystemError("SetWindowsHookEx", ::GetLastError());
  const HWND answer =
      ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  ::SendMessageW(menu, ::RegisterWindowMessageW(kSpyMessage), reinterpret_cast<WPARAM>(answer), 0);
  std::string told = TextOf(answer);
  ::DestroyWindow(answer);
  ::UnhookWindowsHookEx(hook);
  return told;
}

// All items of the menu and of those in it.
std::vector<MenuItem> AllItems(HWND menu) {
  std::vector<MenuItem> items;
  std::istringstream lines(Spy(menu));
  for (std::string line; std::getline(lines, line);) {
    std::istringstream parts(line);
    MenuItem& item = items.emplace_back();
    parts >> item.checked >> item.area.left >> item.area.top >> item.area.right >> item.area.bottom;
    parts.ignore();
    while (std::getline(parts, item.text, '\t')) item.path.push_back(item.text);
    item.text = item.path.back();
  }
  return items;
}

}  // namespace

OpenMenu::OpenMenu(DWORD process) : process_(process) {
  Await("a menu", [process] {
    const std::vector<HWND> menus = MenuWindows(process);
    // Before its loop has begun, a click elsewhere would be lost to it.
    return !menus.empty() && GuiOf(menus.front()).hwndMenuOwner != nullptr;
  });
  root_ = MenuWindows(process).front();
}

bool OpenMenu::Any(DWORD process) { return !MenuWindows(process).empty(); }

std::vector<MenuItem> OpenMenu::Items(const MenuPath& path) const {
  std::vector<MenuItem> items = AllItems(root_);
  std::erase_if(items, [&path](const MenuItem& item) {
    return MenuPath(item.path.begin(), item.path.end() - 1) != path;
  });
  return items;
}

MenuItem OpenMenu::Find(const MenuPath& path) const {
  for (const MenuItem& item : AllItems(root_)) {
    if (item.path == path) return item;
  }
  throw std::runtime_error("the menu has no item \"" + path.back() + "\"");
}

POINT OpenMenu::Reach(const MenuPath& path) const {
  for (std::size_t depth = 1; depth < path.size(); ++depth) {
    if (MenuWindows(process_).size() > depth) continue;
    Click(MiddleOf(Find({path.begin(), path.begin() + static_cast<std::ptrdiff_t>(depth)}).area));
    Await("a submenu", [&] { return MenuWindows(process_).size() > depth; });
  }
  return MiddleOf(Find(path).area);
}

void OpenMenu::Choose(const MenuPath& path) const {
  Click(Reach(path));
  Await("the menu to close", [this] { return !Any(process_); });
}

void OpenMenu::Leave() const {
  // One press leaves one level.
  Await("the menu to close", [this] {
    const std::vector<HWND> menus = MenuWindows(process_);
    if (!menus.empty()) ::PostMessageW(menus.back(), WM_KEYDOWN, VK_ESCAPE, 0);
    return menus.empty();
  });
}

}  // namespace desktop
