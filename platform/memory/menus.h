// Popup menus that tests choose from.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/menus.h"

namespace platform::memory {

class Menus final : public platform::Menus {
 public:
  [[nodiscard]] int Popup(TopWindow& owner, Point at, const std::vector<MenuEntry>& entries,
                          MenuPainter& painter) override;
  void Cancel() override { cancelled = true; }

  // Returns the entry with this text, at any depth, or null when there is none.
  [[nodiscard]] static const MenuEntry* Find(const std::vector<MenuEntry>& entries,
                                             const std::string& text);

  // What the user does in the menus that open next: it gets the entries of the open menu and
  // returns the chosen id, or 0 for none.
  std::function<int(const std::vector<MenuEntry>&, MenuPainter&)> user;
  // Makes the user choose the entry with this text from the next menu.
  void WillChoose(std::string text);

  std::vector<MenuEntry> last;  // the entries of the menu opened last
  Point last_at;
  int opened = 0;
  bool cancelled = false;
};

}  // namespace platform::memory
