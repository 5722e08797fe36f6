// The program's menu, used as a user does.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/desktop/driver/win.h"

namespace desktop {

struct MenuItem {
  std::string text;  // as the menu holds it, ampersands doubled; empty for a separator
  bool enabled = true;
  bool checked = false;
  HMENU submenu = nullptr;
  RECT area{};  // on the screen
};

// Texts of items, from the outermost menu inwards.
using MenuPath = std::vector<std::string>;

// A menu that is open. What a method waits for in vain, it throws as std::runtime_error.
class OpenMenu {
 public:
  // Waits until the program has opened a menu. Looks into it for as long as this lives.
  explicit OpenMenu(DWORD process);
  ~OpenMenu();
  OpenMenu(const OpenMenu&) = delete;
  OpenMenu& operator=(const OpenMenu&) = delete;

  // What stands in it, or in the submenu that `path` leads to, which is opened with the mouse.
  [[nodiscard]] std::vector<MenuItem> Items(const MenuPath& path = {});
  // The item at the end of `path`; its submenus are opened with the mouse.
  [[nodiscard]] MenuItem Find(const MenuPath& path);
  // Clicks the item at the end of `path` and waits until the menu is gone.
  void Choose(const MenuPath& path);
  // Leaves it with Esc.
  void Leave();

  // Whether a menu of the process is open.
  [[nodiscard]] static bool Any(DWORD process);

 private:
  class Spy;

  [[nodiscard]] std::vector<MenuItem> Read(HWND menu_window);
  // The window of the submenu behind `item`; opened when it is not open.
  HWND OpenSubmenu(const MenuItem& item);
  // The window of the menu that the steps lead to.
  template <class Step>
  HWND Follow(Step begin, Step end);

  DWORD process_;
  HWND root_ = nullptr;
  std::unique_ptr<Spy> spy_;
};

}  // namespace desktop
