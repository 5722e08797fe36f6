// A push button.
#pragma once

#include "platform/controls.h"
#include "toolkit/controls/control.h"
#include "toolkit/forms/modal_stack.h"

namespace toolkit {

class Button : public Control {
 public:
  Button(Control& parent, std::string_view name);

  // Makes this the default button, which Enter presses anywhere in the form. A form has at most
  // one.
  void SetDefault(bool is_default) { button_->SetDefault(is_default); }
  // Does what a click does.
  void Click() { Clicked(); }

  // A click ends the modal form that the button is on with this result, before OnClick runs. kNone
  // leaves the form open.
  toolkit::ModalResult ModalResult = toolkit::ModalResult::kNone;

 protected:
  void Clicked() override;

 private:
  platform::Button* button_;  // the peer, owned by Control
};

}  // namespace toolkit
