// A push button.
#pragma once

#include "platform/controls.h"
#include "toolkit/controls/control.h"
#include "toolkit/forms/modal_stack.h"

namespace toolkit {

class Button : public Control {
 public:
  Button(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kPush; }
  [[nodiscard]] bool MarksKey() const override { return true; }
  // Pressed by Enter anywhere in the form, unless another push button has the keyboard; at most one
  // of a form.
  void SetDefault(bool is_default);
  [[nodiscard]] bool IsDefault() const { return default_; }
  // Gives it the look of the button that Enter presses.
  void ShowAsDefault(bool shown);
  // What a click does.
  void Click() { Clicked(); }

  // A click ends the modal form that the button is on with this result, before OnClick runs. kNone
  // leaves the form open.
  toolkit::ModalResult ModalResult = toolkit::ModalResult::kNone;

 protected:
  void Clicked() override;
  void PressByKey() override { button_->Press(); }
  void Realised() override;

 private:
  platform::Button* button_ = nullptr;  // the peer, owned by Control
  bool default_ = false;
};

}  // namespace toolkit
