// A sunken panel that shows a colour. It can be clicked, also with the keyboard; its caption is not
// seen but says to screen readers what the colour is for.
#pragma once

#include "toolkit/controls/control.h"

namespace toolkit {

// The colour that it shows is its background colour.
class ColourPanel : public Control {
 public:
  ColourPanel(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kPush; }

 protected:
  void Paint(platform::Canvas& canvas) override;
};

}  // namespace toolkit
