// A radio button; OnClick is fired when it becomes the chosen one.
#pragma once

#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

// Those of one parent that were made one after the other exclude each other.
class RadioButton : public Control {
 public:
  RadioButton(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kRadio; }
  [[nodiscard]] bool MarksKey() const override { return true; }
  // Those that exclude each other, this one too.
  [[nodiscard]] std::vector<RadioButton*> Group() const;
  [[nodiscard]] bool Checked() const { return checked_; }
  // Checking one takes the mark from the others, which are not told.
  void SetChecked(bool checked);

 protected:
  void Clicked() override;
  void PressByKey() override { button_->Press(); }
  void Realised() override { button_->SetChecked(checked_); }

 private:
  void Mark(bool checked);
  void Choose();

  platform::Button* button_ = nullptr;  // the peer, owned by Control
  bool checked_ = false;
};

}  // namespace toolkit
