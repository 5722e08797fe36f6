// A tree of items, all of them expanded.
#pragma once

#include <functional>
#include <span>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class TreeView : public Control {
 public:
  TreeView(Control& parent, std::string_view name);

  // Replaces the items. The selection keeps its number, if there still is such an item.
  void SetItems(std::span<const platform::TreeItem> items);
  // The number of the selected item, counted in the expanded tree; -1 means none.
  [[nodiscard]] int ItemIndex() const { return index_; }
  void SetItemIndex(int index);
  // Expands the items that the user has collapsed.
  void FullExpand() { tree_->ExpandAll(); }

  // Runs when another item is selected.
  std::function<void()> OnChange;

 protected:
  void OnChanged() override;

 private:
  platform::Tree* tree_;  // the peer, owned by Control
  int count_ = 0;
  int index_ = -1;
};

}  // namespace toolkit
