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
  void SetDefault(bool is_default) { button_->SetDefault(is_default); }
  // What a click does.
  void Click() { Clicked(); }

  // A click ends the modal form that the button is on with this, before OnClick runs; kNone leaves
  // the form open.
  toolkit::ModalResult ModalResult = toolkit::ModalResult::kNone;

 protected:
  void Clicked() override;

 private:
  platform::Button* button_;  // the peer, owned by Control
};

}  // namespace toolkit
