#include "toolkit/menus/popup_menu.h"

#include <optional>
#include <utility>

#include "platform/scoped_value.h"
#include "toolkit/application.h"

namespace toolkit {
namespace {

constexpr std::string_view kSeparator = "-";

std::string DoubleAmpersands(std::string_view text) {
  std::string doubled;
  for (const char c : text) {
    doubled += c;
    if (c == '&') doubled += c;
  }
  return doubled;
}

// Numbers the items in their order and remembers the item of each number.
class EntryBuilder {
 public:
  using Item = std::shared_ptr<MenuItem>;

  [[nodiscard]] std::vector<platform::MenuEntry> Build(const std::vector<Item>& items) {
    std::vector<platform::MenuEntry> entries;
    for (const Item& item : items) entries.push_back(EntryOf(item));
    return entries;
  }

  // Returns the item with this id, or null when there is none or it was removed.
  [[nodiscard]] Item ItemOf(int id) const {
    const auto index = static_cast<std::size_t>(id) - 1;
    return id > 0 && index < items_.size() ? items_[index].lock() : nullptr;
  }

 private:
  platform::MenuEntry EntryOf(const Item& item) {
    items_.push_back(item);
    platform::MenuEntry entry;
    entry.id = static_cast<int>(items_.size());
    entry.separator = !item->Literal && item->Caption == kSeparator;
    entry.text = item->Literal ? DoubleAmpersands(item->Caption) : item->Caption;
    entry.shortcut = ShortCutText(item->ShortCut);
    entry.keys = CombinationOf(item->ShortCut);
    entry.hint = item->Hint;
    entry.enabled = item->Enabled;
    entry.checked = item->Checked();
    entry.radio = item->RadioItem;
    entry.image = item->ImageIndex;
    entry.children = Build(item->Children());
    return entry;
  }

  std::vector<std::weak_ptr<MenuItem>> items_;
};

}  // namespace

void MenuItem::SetChecked(bool checked) {
  checked_ = checked;
  if (!checked || !RadioItem || parent_ == nullptr) return;
  for (const auto& sibling : parent_->children_) {
    if (sibling.get() != this && sibling->RadioItem) sibling->checked_ = false;
  }
}

MenuItem& MenuItem::Add(std::string_view caption) {
  children_.push_back(std::make_shared<MenuItem>(caption));
  children_.back()->parent_ = this;
  return *children_.back();
}

PopupMenu::PopupMenu(Application& app, const ImageList& images)
    : app_(app), painter_(app, images) {}

void PopupMenu::Popup(platform::Point screen) {
  if (open_) return;
  std::optional<platform::ScopedValue<bool>> opened(std::in_place, open_, true);
  if (OnPopup) app_.Guard(OnPopup);
  EntryBuilder builder;
  const std::vector<platform::MenuEntry> entries = builder.Build(Items.Children());
  const int id = app_.Platform().menus.Popup(screen, entries, painter_);
  opened.reset();
  if (const auto waiting = std::exchange(next_, {}); !waiting.empty()) {
    for (const auto& next : waiting) app_.Guard(next);
    return;
  }
  // Scans go on while the menu is open and may replace the adapter items; the item that is held
  // here outlives its handler.
  const std::shared_ptr<MenuItem> item = builder.ItemOf(id);
  if (item != nullptr && item->OnClick) app_.Guard(item->OnClick);
}

void PopupMenu::CloseThen(const std::function<void()>& next) {
  if (!open_) {
    next();
    return;
  }
  next_.push_back(next);
  app_.Platform().menus.Cancel();
}

}  // namespace toolkit
