#include "toolkit/controls/lists.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

ListControl::ListControl(Control& parent, std::string_view name, platform::ListKind kind)
    : ControlOf(parent, name) {
  Attach([this, kind](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateList(on, Name(), kind, *this);
  });
  SetColour(platform::colour::kWindow);
}

void ListControl::SetItems(std::span<const std::string> items) {
  Replace(0, items_.size(), items, index_ < static_cast<int>(items.size()) ? index_ : -1);
}

void ListControl::Add(std::string_view item) {
  const std::string added(item);
  Replace(items_.size(), 0, {&added, 1}, index_);
}

void ListControl::Remove(int row) {
  if (row < 0 || row >= Count()) return;
  const int behind = index_ > row ? index_ - 1 : index_;
  Replace(static_cast<std::size_t>(row), 1, {}, index_ == row ? -1 : behind);
}

// When the selected row moves up, the selection has not changed; when it is removed, the selection
// has.
void ListControl::Replace(std::size_t first, std::size_t removed,
                          std::span<const std::string> added, int index) {
  const auto from = items_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto gap = items_.erase(from, from + static_cast<std::ptrdiff_t>(removed));
  items_.insert(gap, added.begin(), added.end());
  const bool lost = std::exchange(index_, index) >= 0 && index < 0;
  if (Peer() != nullptr) {
    Peer()->Replace(static_cast<int>(first), static_cast<int>(removed), added);
    Peer()->SetIndex(index_);
  }
  RowsReplaced(first, removed, added.size());
  if (lost) Fire(OnChange);
}

void ListControl::Realised() {
  Peer()->Replace(0, 0, items_);
  Peer()->SetIndex(index_);
}

void ListControl::SetItemIndex(int index) {
  if (!Assign(index_, index >= 0 && index < Count() ? index : -1)) return;
  if (Peer() != nullptr) Peer()->SetIndex(index_);
  Fire(OnChange);
}

void ListControl::OnChanged() { Fire(Assign(index_, Peer()->Index()) ? OnChange : OnChosenAgain); }

bool ListBox::OnKey(platform::Key key) {
  if (key != platform::Key::kDelete) return false;
  Fire(OnDelete);
  return true;
}

bool CheckListBox::Checked(int row) const {
  return row >= 0 && row < Count() && checks_[static_cast<std::size_t>(row)];
}

bool CheckListBox::Take(int row, bool checked) {
  if (row < 0 || row >= Count() || Checked(row) == checked) return false;
  checks_[static_cast<std::size_t>(row)] = checked;
  return true;
}

void CheckListBox::SetChecked(int row, bool checked) {
  if (!Take(row, checked)) return;
  if (Peer() != nullptr) Peer()->SetChecked(row, checked);
  FireCheck(row);
}

void CheckListBox::OnRowChecked(int row) {
  if (Take(row, Peer()->Checked(row))) FireCheck(row);
}

void CheckListBox::FireCheck(int row) {
  if (OnClickCheck) Fire([handler = OnClickCheck, row] { handler(row); });
}

void CheckListBox::Realised() {
  ListControl::Realised();
  ShowChecks();
}

// The rows that are new take over the ticks of those that they replace.
void CheckListBox::RowsReplaced(std::size_t first, std::size_t removed, std::size_t added) {
  const auto behind = checks_.begin() + static_cast<std::ptrdiff_t>(first + removed);
  if (added < removed) {
    checks_.erase(behind - static_cast<std::ptrdiff_t>(removed - added), behind);
  } else {
    checks_.insert(behind, added - removed, false);
  }
  if (Peer() != nullptr) ShowChecks();
}

void CheckListBox::ShowChecks() {
  for (int row = 0; row < Count(); ++row) {
    if (Checked(row)) Peer()->SetChecked(row, true);
  }
}

TreeView::TreeView(Control& parent, std::string_view name) : ControlOf(parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateTree(on, Name(), *this);
  });
  SetColour(platform::colour::kWindow);
}

int TreeView::Existing(int index) const {
  return index >= 0 && index < static_cast<int>(items_.size()) ? index : -1;
}

void TreeView::SetItems(std::span<const platform::TreeItem> items) {
  items_.assign(items.begin(), items.end());
  const bool lost = Assign(index_, Existing(index_));
  if (Peer() != nullptr) Realised();
  if (lost) Fire(OnChange);
}

void TreeView::Realised() {
  Peer()->SetItems(items_);
  Peer()->SetIndex(index_);
}

void TreeView::FullExpand() {
  if (Peer() != nullptr) Peer()->ExpandAll();
}

void TreeView::SetItemIndex(int index) {
  if (!Assign(index_, Existing(index))) return;
  if (Peer() != nullptr) Peer()->SetIndex(index_);
  Fire(OnChange);
}

void TreeView::OnChanged() {
  if (Assign(index_, Peer()->Index())) Fire(OnChange);
}

}  // namespace toolkit
