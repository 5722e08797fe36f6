// A tree of items, all of them expanded.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class TreeView : public Control {
 public:
  TreeView(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  // Replaces the items; the selection stays at its number, if there still is such an item.
  void SetItems(std::span<const platform::TreeItem> items);
  // The number of the selected item, counted in the expanded tree; -1 means none.
  [[nodiscard]] int ItemIndex() const { return index_; }
  void SetItemIndex(int index);
  // Expands what the user has collapsed.
  void FullExpand();

  // Runs when another item is selected.
  std::function<void()> OnChange;

 protected:
  void OnChanged() override;
  void Realised() override;

 private:
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }

  platform::Tree* tree_ = nullptr;  // the peer, owned by Control
  std::vector<platform::TreeItem> items_;
  int index_ = -1;
};

}  // namespace toolkit
