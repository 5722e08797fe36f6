#include "toolkit/controls/check_box.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

CheckBox::CheckBox(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateButton(on, Name(), platform::ButtonKind::kCheck, *this),
                    button_);
  });
}

void CheckBox::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  if (button_ != nullptr) button_->SetChecked(checked);
  Fire(OnClick);
}

void CheckBox::Clicked() {
  if (std::exchange(checked_, button_->Checked()) != checked_) Fire(OnClick);
}

}  // namespace toolkit
