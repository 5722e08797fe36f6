#include "platform/memory/menus.h"

#include <utility>

namespace platform::memory {

int Menus::Popup(TopWindow& /*owner*/, Point at, const std::vector<MenuEntry>& entries,
                 MenuPainter& painter) {
  ++opened;
  cancelled = false;
  last = entries;
  last_at = at;
  const auto act = user;  // a copy, since the call may replace `user`
  const int chosen = act ? act(entries, painter) : 0;
  return cancelled ? 0 : chosen;
}

const MenuEntry* Menus::Find(const std::vector<MenuEntry>& entries, const std::string& text) {
  for (const MenuEntry& entry : entries) {
    if (!entry.separator && entry.text == text) return &entry;
    if (const MenuEntry* found = Find(entry.children, text)) return found;
  }
  return nullptr;
}

void Menus::WillChoose(std::string text) {
  user = [this, text = std::move(text)](const std::vector<MenuEntry>& entries, MenuPainter&) {
    const MenuEntry* entry = Find(entries, text);
    user = nullptr;
    return entry != nullptr && entry->enabled ? entry->id : 0;
  };
}

}  // namespace platform::memory
