// A text that opens something when it is clicked.
#pragma once

#include <string_view>

#include "toolkit/controls/control.h"

namespace toolkit {

// Looks like a text and is pressed like a button, also with the keyboard; then OnClick runs.
class LinkLabel : public Control {
 public:
  LinkLabel(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kPush; }

 protected:
  void Paint(platform::Canvas& canvas) override;
  void CaptionChanged() override { Invalidate(); }
};

}  // namespace toolkit
