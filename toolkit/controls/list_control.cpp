#include "toolkit/controls/list_control.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

ListControl::ListControl(Control& parent, std::string_view name, platform::ListKind kind)
    : Control(parent.App(), &parent, name) {
  Attach([this, kind](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateList(on, Name(), kind, *this), list_);
  });
  SetColour(platform::colour::kWindow);
}

void ListControl::SetItems(std::span<const std::string> items) {
  items_.assign(items.begin(), items.end());
  ShowItems(index_ < Count() ? index_ : -1);
}

void ListControl::Add(std::string_view item) {
  items_.emplace_back(item);
  ShowItems(index_);
}

void ListControl::Remove(int row) {
  if (row < 0 || row >= Count()) return;
  items_.erase(items_.begin() + row);
  RowRemoved(row);
  const int behind = index_ > row ? index_ - 1 : index_;
  ShowItems(index_ == row ? -1 : behind);
}

// When the selected row moves up, the selection has not changed; when it is removed, the selection
// has.
void ListControl::ShowItems(int index) {
  const bool lost = index_ >= 0 && index < 0;
  index_ = index;
  ItemsReplaced();
  if (list_ != nullptr) Realised();
  if (lost) Fire(OnChange);
}

void ListControl::Realised() {
  list_->SetItems(items_);
  list_->SetIndex(index_);
}

void ListControl::SetItemIndex(int index) {
  const int wanted = index >= 0 && index < Count() ? index : -1;
  if (wanted == index_) return;
  index_ = wanted;
  if (list_ != nullptr) list_->SetIndex(index_);
  Fire(OnChange);
}

void ListControl::OnChanged() {
  const int before = std::exchange(index_, list_->Index());
  Fire(index_ != before ? OnChange : OnChosenAgain);
}

}  // namespace toolkit
