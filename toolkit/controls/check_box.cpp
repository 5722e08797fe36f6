#include "toolkit/controls/check_box.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

CheckBox::CheckBox(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  auto button = App().Platform().windowing.CreateButton(PeerOf(parent), name,
                                                        platform::ButtonKind::kCheck, *this);
  button_ = button.get();
  Attach(std::move(button));
}

void CheckBox::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  button_->SetChecked(checked);
  Fire(OnClick);
}

void CheckBox::Clicked() {
  if (std::exchange(checked_, button_->Checked()) != checked_) Fire(OnClick);
}

}  // namespace toolkit
