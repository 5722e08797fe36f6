// Lists of rows, and trees.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

// What lists of every kind have in common: rows, one of which may be selected.
class ListControl : public ControlOf<platform::ItemList> {
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
  // Is called when `added` rows have taken the place of the `removed` ones from `first` on.
  virtual void RowsReplaced(std::size_t /*first*/, std::size_t /*removed*/, std::size_t /*added*/) {
  }

 private:
  // Puts `added` in the place of the `removed` rows from `first` on, and selects `index`.
  void Replace(std::size_t first, std::size_t removed, std::span<const std::string> added,
               int index);

  std::vector<std::string> items_;
  int index_ = -1;
};

// A list that is always open.
class ListBox : public ListControl {
 public:
  ListBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kBox) {}

  // Runs when the user presses Del.
  std::function<void()> OnDelete;

 protected:
  bool OnKey(platform::Key key) override;
};

// A list that drops down.
class ComboBox : public ListControl {
 public:
  ComboBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kCombo) {}
};

// A combo box that shows each row in the font that the row names.
class FontComboBox : public ListControl {
 public:
  FontComboBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kFontCombo) {}
};

// A list with a check box in each row.
class CheckListBox : public ListControl {
 public:
  CheckListBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kCheckBox) {}

  // Returns false for a row that does not exist.
  [[nodiscard]] bool Checked(int row) const;
  void SetChecked(int row, bool checked);

  // Runs when a row was ticked or unticked.
  std::function<void(int row)> OnClickCheck;

 protected:
  void OnRowChecked(int row) override;
  void Realised() override;
  void RowsReplaced(std::size_t first, std::size_t removed, std::size_t added) override;

 private:
  // Takes the tick of a row; returns whether that changed it.
  bool Take(int row, bool checked);
  void ShowChecks();
  void FireCheck(int row);

  std::vector<bool> checks_;
};

// A tree of items, all of them expanded.
class TreeView : public ControlOf<platform::Tree> {
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
  // Returns the number of an item, or -1 when there is no such item.
  [[nodiscard]] int Existing(int index) const;

  std::vector<platform::TreeItem> items_;
  int index_ = -1;
};

}  // namespace toolkit
