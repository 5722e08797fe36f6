#include "toolkit/controls/button.h"

#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {

Button::Button(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateButton(on, Name(), platform::ButtonKind::kPush, *this),
                    button_);
  });
}

void Button::SetDefault(bool is_default) {
  default_ = is_default;
  ShowAsDefault(is_default);
  ParentForm().Keys().ShowWhatEnterPresses();
}

void Button::ShowAsDefault(bool shown) {
  if (button_ != nullptr) button_->SetDefault(shown);
}

void Button::Realised() {
  if (default_) SetDefault(true);
}

void Button::Clicked() {
  if (ModalResult != toolkit::ModalResult::kNone) ParentForm().EndModal(ModalResult);
  Fire(OnClick);
}

}  // namespace toolkit
