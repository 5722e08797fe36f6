#include "toolkit/controls/check_list_box.h"

namespace toolkit {

bool CheckListBox::Checked(int row) const {
  const auto at = static_cast<std::size_t>(row);
  return row >= 0 && at < checks_.size() && checks_[at];
}

void CheckListBox::SetChecked(int row, bool checked) {
  if (row < 0 || row >= Count() || Checked(row) == checked) return;
  checks_[static_cast<std::size_t>(row)] = checked;
  if (List() != nullptr) List()->SetChecked(row, checked);
  FireCheck(row);
}

void CheckListBox::OnRowChecked(int row) {
  const bool checked = List()->Checked(row);
  if (row < 0 || row >= Count() || Checked(row) == checked) return;
  checks_[static_cast<std::size_t>(row)] = checked;
  FireCheck(row);
}

void CheckListBox::FireCheck(int row) {
  if (OnClickCheck) Fire([handler = OnClickCheck, row] { handler(row); });
}

void CheckListBox::Realised() {
  ListControl::Realised();
  for (int row = 0; row < Count(); ++row) {
    if (Checked(row)) List()->SetChecked(row, true);
  }
}

void CheckListBox::ItemsReplaced() { checks_.resize(Items().size()); }

void CheckListBox::RowRemoved(int row) { checks_.erase(checks_.begin() + row); }

}  // namespace toolkit
