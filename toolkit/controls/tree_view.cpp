#include "toolkit/controls/tree_view.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

TreeView::TreeView(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  auto tree = App().Platform().windowing.CreateTree(PeerOf(parent), name, *this);
  tree_ = tree.get();
  Attach(std::move(tree));
  SetColour(platform::colour::kWindow);
}

void TreeView::SetItems(std::span<const platform::TreeItem> items) {
  count_ = static_cast<int>(items.size());
  tree_->SetItems(items);
  const int kept = index_ < count_ ? index_ : -1;
  tree_->SetIndex(kept);
  if (std::exchange(index_, kept) != kept) Fire(OnChange);
}

void TreeView::SetItemIndex(int index) {
  const int wanted = index >= 0 && index < count_ ? index : -1;
  if (wanted == index_) return;
  index_ = wanted;
  tree_->SetIndex(index_);
  Fire(OnChange);
}

void TreeView::OnChanged() {
  if (std::exchange(index_, tree_->Index()) != index_) Fire(OnChange);
}

}  // namespace toolkit
