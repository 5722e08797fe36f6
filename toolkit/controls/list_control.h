// What lists of every kind have in common: rows, one of which may be selected.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class ListControl : public Control {
 public:
  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  [[nodiscard]] const std::vector<std::string>& Items() const { return items_; }
  // Replaces the rows. The selection keeps its row number, if there still is such a row; check
  // boxes keep their ticks in the same way.
  void SetItems(std::span<const std::string> items);
  void Add(std::string_view item);
  // Removes a row. When it was the selected one, no row is selected afterwards.
  void Remove(int row);
  void Clear() { SetItems({}); }
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }

  // The selected row, or -1 for none. Setting a row that does not exist selects none.
  [[nodiscard]] int ItemIndex() const { return index_; }
  void SetItemIndex(int index);

  // Runs when another row is selected.
  std::function<void()> OnChange;
  // Runs when the user chose the row that is selected already.
  std::function<void()> OnChosenAgain;

 protected:
  ListControl(Control& parent, std::string_view name, platform::ListKind kind);

  void OnChanged() override;
  void Realised() override;
  // The peer; null while there is none.
  [[nodiscard]] platform::ItemList* List() const { return list_; }
  // There are other rows.
  virtual void ItemsReplaced() {}
  // A row was removed, the others are to move up.
  virtual void RowRemoved(int /*row*/) {}

 private:
  void ShowItems(int index);

  platform::ItemList* list_ = nullptr;  // the peer, owned by Control
  std::vector<std::string> items_;
  int index_ = -1;
};

}  // namespace toolkit
