// A push button.
#pragma once

#include "platform/controls.h"
#include "toolkit/controls/control.h"
#include "toolkit/forms/modal_stack.h"

namespace toolkit {

class Button : public Control {
 public:
  Button(Control& parent, std::string_view name);

  // Pressed by Enter anywhere in the form; at most one of a form.
  void SetDefault(bool is_default);
  // What a click does.
  void Click() { Clicked(); }

  // A click ends the modal form that the button is on with this result, before OnClick runs. kNone
  // leaves the form open.
  toolkit::ModalResult ModalResult = toolkit::ModalResult::kNone;

 protected:
  void Clicked() override;
  void Realised() override { button_->SetDefault(default_); }

 private:
  platform::Button* button_ = nullptr;  // the peer, owned by Control
  bool default_ = false;
};

}  // namespace toolkit
