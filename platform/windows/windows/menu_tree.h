// A menu of the system made from entries.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/menus.h"
#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

struct MenuKind {
  using Raw = HMENU;
  static constexpr Raw None() { return nullptr; }
  static void Close(Raw menu) { ::DestroyMenu(menu); }  // submenus with it
};
using MenuHandle = Handle<MenuKind>;

class MenuTree {
 public:
  // `entries` outlives this. What the system refuses is left out.
  explicit MenuTree(const std::vector<MenuEntry>& entries);

  // Null when the system refused.
  [[nodiscard]] HMENU root() const { return root_.get(); }

  // The entry behind the data of an item, as owner-drawing messages carry it.
  [[nodiscard]] static const MenuEntry& EntryOf(ULONG_PTR item_data);
  // The entry at a place of a menu that a MenuTree made; null outside.
  [[nodiscard]] static const MenuEntry* At(HMENU menu, int position);
  // The position of the item with this id, of which the system's messages carry the lower 16 bits;
  // -1 when the menu itself (not its submenus) has none.
  [[nodiscard]] static int PositionOf(HMENU menu, UINT id);

 private:
  // What an item's data points to. Screen readers look for the first three fields there, since an
  // item that is drawn by its owner has no text that they could see (MSAAMENUINFO).
  struct ItemData {
    DWORD signature;
    DWORD length;
    const wchar_t* text;
    std::wstring label;
    const MenuEntry* entry;
  };

  [[nodiscard]] MenuHandle Make(const std::vector<MenuEntry>& entries);
  void Add(HMENU menu, const MenuEntry& entry);

  // The root last: it goes first, while the data is still there.
  std::deque<ItemData> items_;
  MenuHandle root_;
};

// What the key of an entry is: the letter behind "&", or else the first one; in upper case. 0 for
// an entry without any.
[[nodiscard]] wchar_t MenuKey(const MenuEntry& entry);

}  // namespace platform::windows
