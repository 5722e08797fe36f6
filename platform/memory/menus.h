// Popup menus that tests choose from.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/menus.h"

namespace platform::memory {

class Menus final : public platform::Menus {
 public:
  int Popup(Point at, const std::vector<MenuEntry>& entries, MenuPainter& painter) override {
    ++opened;
    cancelled = false;
    last = entries;
    last_at = at;
    const auto act = user;  // a copy, since the call may replace `user`
    const int chosen = act ? act(entries, painter) : 0;
    return cancelled ? 0 : chosen;
  }
  void Cancel() override { cancelled = true; }

  // Returns the entry with this text, at any depth, or null when there is none.
  [[nodiscard]] static const MenuEntry* Find(const std::vector<MenuEntry>& entries,
                                             const std::string& text) {
    for (const MenuEntry& entry : entries) {
      if (!entry.separator && entry.text == text) return &entry;
      if (const MenuEntry* found = Find(entry.children, text)) return found;
    }
    return nullptr;
  }

  // What the user does in the menus that open next: it gets the entries of the open menu and
  // returns the chosen id, or 0 for none.
  std::function<int(const std::vector<MenuEntry>&, MenuPainter&)> user;
  // Makes the user choose the entry with this text from the next menu.
  void WillChoose(std::string text) {
    user = [this, text = std::move(text)](const std::vector<MenuEntry>& entries, MenuPainter&) {
      const MenuEntry* entry = Find(entries, text);
      user = nullptr;
      return entry != nullptr && entry->enabled ? entry->id : 0;
    };
  }

  std::vector<MenuEntry> last;  // the entries of the menu opened last
  Point last_at;
  int opened = 0;
  bool cancelled = false;
};

}  // namespace platform::memory
