// A list with a check box in each row.
#pragma once

#include "toolkit/controls/list_control.h"

namespace toolkit {

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
  void ItemsReplaced() override;
  void RowRemoved(int row) override;

 private:
  void FireCheck(int row);

  std::vector<bool> checks_;
};

}  // namespace toolkit
