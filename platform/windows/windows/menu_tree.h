// Makes a system menu from entries.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/menus.h"
#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

// Destroying a menu destroys its submenus.
using MenuHandle = Handle<ZeroIsNone<HMENU, &::DestroyMenu>>;

class MenuTree {
 public:
  // `entries` outlives the tree. Items that the system refuses are left out.
  explicit MenuTree(const std::vector<MenuEntry>& entries);

  // Returns null when the system refused.
  [[nodiscard]] HMENU root() const { return root_.get(); }

  // Returns the entry of an item from the item data that owner-drawing messages carry.
  [[nodiscard]] static const MenuEntry& EntryOf(ULONG_PTR item_data);
  // Returns the entry at a position of a menu that a MenuTree made, or null for a position that
  // does not exist.
  [[nodiscard]] static const MenuEntry* At(HMENU menu, int position);
  // Returns the position of the item with this id, of which the system's messages carry the lower
  // 16 bits, or -1 when the menu itself (not its submenus) has none.
  [[nodiscard]] static int PositionOf(HMENU menu, UINT id);

 private:
  // The structure that an item's data points to. Screen readers look for the first three fields
  // there, since an item that is drawn by its owner has no text that they could see (MSAAMENUINFO).
  struct ItemData {
    DWORD signature;
    DWORD length;
    const wchar_t* text;
    std::wstring label;
    const MenuEntry* entry;
  };

  [[nodiscard]] MenuHandle Make(const std::vector<MenuEntry>& entries);
  void Add(HMENU menu, const MenuEntry& entry);

  // root_ stands last so that it is destroyed first, while the data still exists.
  std::deque<ItemData> items_;
  MenuHandle root_;
};

// Returns the key of an entry in upper case: the character behind "&", or else the first one.
// Returns 0 for a separator and for an entry without a text.
[[nodiscard]] wchar_t MenuKey(const MenuEntry& entry);

}  // namespace platform::windows
