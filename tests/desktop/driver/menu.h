// The program's menu, used as a user does.
#pragma once

#include <string>
#include <vector>

#include "tests/desktop/driver/win.h"

namespace desktop {

// Texts of items as the menu holds them, ampersands doubled, from the outermost menu inwards.
using MenuPath = std::vector<std::string>;

struct MenuItem {
  MenuPath path;
  std::string text;  // the last of the path
  bool checked = false;
  RECT area{};  // on the screen; means something while its menu is open
};

// A menu that is open. What a method waits for in vain, it throws as std::runtime_error.
class OpenMenu {
 public:
  // Waits until the program has opened a menu.
  explicit OpenMenu(DWORD process);

  // The items of the menu, or of the one in it that `path` leads to.
  [[nodiscard]] std::vector<MenuItem> Items(const MenuPath& path = {}) const;
  [[nodiscard]] MenuItem Find(const MenuPath& path) const;
  // Opens the menus on the way to the item at the end of `path` with the mouse, and returns where
  // the item is then.
  POINT Reach(const MenuPath& path) const;
  // Clicks the item at the end of `path` and waits until the menu is gone.
  void Choose(const MenuPath& path) const;
  // Leaves it with Esc.
  void Leave() const;

  // Whether a menu of the process is open.
  [[nodiscard]] static bool Any(DWORD process);

 private:
  DWORD process_;
  HWND root_ = nullptr;
};

}  // namespace desktop
