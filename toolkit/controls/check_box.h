// A check box; OnClick is its change handler.
#pragma once

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class CheckBox : public Control {
 public:
  CheckBox(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  [[nodiscard]] bool MarksKey() const override { return true; }
  [[nodiscard]] bool Checked() const { return checked_; }
  void SetChecked(bool checked);

 protected:
  void Clicked() override;
  void PressByKey() override { button_->Press(); }
  void Realised() override { button_->SetChecked(checked_); }

 private:
  platform::Button* button_ = nullptr;  // the peer, owned by Control
  bool checked_ = false;
};

}  // namespace toolkit
