#include "toolkit/controls/tree_view.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

TreeView::TreeView(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateTree(on, Name(), *this), tree_);
  });
  SetColour(platform::colour::kWindow);
}

void TreeView::SetItems(std::span<const platform::TreeItem> items) {
  items_.assign(items.begin(), items.end());
  const int before = std::exchange(index_, index_ < Count() ? index_ : -1);
  if (tree_ != nullptr) Realised();
  if (index_ != before) Fire(OnChange);
}

void TreeView::Realised() {
  tree_->SetItems(items_);
  tree_->SetIndex(index_);
}

void TreeView::FullExpand() {
  if (tree_ != nullptr) tree_->ExpandAll();
}

void TreeView::SetItemIndex(int index) {
  const int wanted = index >= 0 && index < Count() ? index : -1;
  if (wanted == index_) return;
  index_ = wanted;
  if (tree_ != nullptr) tree_->SetIndex(index_);
  Fire(OnChange);
}

void TreeView::OnChanged() {
  if (std::exchange(index_, tree_->Index()) != index_) Fire(OnChange);
}

}  // namespace toolkit
