#include "platform/windows/windows/menu_tree.h"

#include "platform/marked_text.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

constexpr DWORD kAccessibleSignature = 0xAA0DF00D;  // MSAA_MENU_SIG

// Returns the text of an item in a native menu.
std::wstring LabelOf(const MenuEntry& entry) {
  std::wstring label = ToWide(entry.text);
  if (!entry.shortcut.empty()) label += L'\t' + ToWide(entry.shortcut);
  return label;
}

wchar_t UpperCase(wchar_t letter) {
  ::CharUpperBuffW(&letter, 1);
  return letter;
}

}  // namespace

MenuTree::MenuTree(const std::vector<MenuEntry>& entries) : root_(Make(entries)) {}

MenuHandle MenuTree::Make(const std::vector<MenuEntry>& entries) {
  MenuHandle menu(::CreatePopupMenu());
  if (!menu) return menu;
  for (const MenuEntry& entry : entries) Add(menu.get(), entry);
  return menu;
}

void MenuTree::Add(HMENU menu, const MenuEntry& entry) {
  ItemData& data = items_.emplace_back(ItemData{kAccessibleSignature, 0, nullptr, {}, &entry});
  data.label = LabelOf(entry);
  data.length = static_cast<DWORD>(data.label.size());
  data.text = data.label.c_str();

  MENUITEMINFOW item{};
  item.cbSize = sizeof(item);
  item.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_DATA;
  item.fType = MFT_OWNERDRAW;
  item.dwItemData = reinterpret_cast<ULONG_PTR>(&data);
  MenuHandle submenu;
  if (entry.separator) {
    item.fType |= MFT_SEPARATOR;
  } else {
    item.fMask |= MIIM_STRING;
    item.dwTypeData = data.label.data();
    item.wID = static_cast<UINT>(entry.id);
    item.fState = (entry.enabled ? MFS_ENABLED : MFS_DISABLED) |
                  (entry.checked ? MFS_CHECKED : MFS_UNCHECKED);
    if (entry.radio) item.fType |= MFT_RADIOCHECK;
    if (!entry.children.empty()) submenu = Make(entry.children);
    if (submenu) item.fMask |= MIIM_SUBMENU;
    item.hSubMenu = submenu.get();
  }
  const auto end = static_cast<UINT>(::GetMenuItemCount(menu));
  if (::InsertMenuItemW(menu, end, TRUE, &item)) (void)submenu.release();  // the menu owns it now
}

const MenuEntry& MenuTree::EntryOf(ULONG_PTR item_data) {
  return *reinterpret_cast<const ItemData*>(item_data)->entry;
}

const MenuEntry* MenuTree::At(HMENU menu, int position) {
  MENUITEMINFOW item{};
  item.cbSize = sizeof(item);
  item.fMask = MIIM_DATA;
  if (!::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item)) return nullptr;
  return item.dwItemData != 0 ? &EntryOf(item.dwItemData) : nullptr;
}

int MenuTree::PositionOf(HMENU menu, UINT id) {
  const int count = ::GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    if (::GetMenuItemID(menu, position) == id) return position;
  }
  return -1;
}

wchar_t MenuKey(const MenuEntry& entry) {
  if (entry.separator) return 0;
  const MarkedText text = ReadMarks(entry.text);
  const std::wstring key = ToWide(text.key_at < text.shown.size() ? text.Key() : text.shown);
  return key.empty() ? L'\0' : UpperCase(key.front());
}

}  // namespace platform::windows
