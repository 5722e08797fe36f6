#include "toolkit/controls/radio_button.h"

#include <algorithm>
#include <utility>

#include "toolkit/application.h"

namespace toolkit {

RadioButton::RadioButton(Control& parent, std::string_view name)
    : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateButton(on, Name(), platform::ButtonKind::kRadio, *this),
                    button_);
  });
}

std::vector<RadioButton*> RadioButton::Group() const {
  std::vector<RadioButton*> group;
  for (Control* sibling : Parent()->Children()) {
    if (auto* radio = dynamic_cast<RadioButton*>(sibling)) {
      group.push_back(radio);
    } else if (std::find(group.begin(), group.end(), this) != group.end()) {
      break;
    } else {
      group.clear();
    }
  }
  return group;
}

void RadioButton::Mark(bool checked) {
  checked_ = checked;
  if (button_ != nullptr) button_->SetChecked(checked);
}

void RadioButton::Choose() {
  for (RadioButton* radio : Group()) {
    if (radio->checked_ != (radio == this)) radio->Mark(radio == this);
  }
  Fire(OnClick);
}

void RadioButton::SetChecked(bool checked) {
  if (checked == checked_) return;
  if (checked) {
    Choose();
  } else {
    Mark(false);
  }
}

void RadioButton::Clicked() {
  if (!checked_ && button_->Checked()) Choose();
}

}  // namespace toolkit
