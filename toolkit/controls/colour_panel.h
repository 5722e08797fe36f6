// A sunken panel that shows a colour. It can be clicked, also with the keyboard. Its caption is not
// shown, but screen readers say it, so that the user knows what the colour is for.
#pragma once

#include "toolkit/controls/control.h"

namespace toolkit {

// The panel shows its background colour.
class ColourPanel : public Control {
 public:
  ColourPanel(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kPush; }

 protected:
  void Paint(platform::Canvas& canvas) override;
};

}  // namespace toolkit
