// A frame with a title around other controls, which have it as their parent.
#pragma once

#include "toolkit/controls/control.h"

namespace toolkit {

class GroupBox : public Control {
 public:
  GroupBox(Control& parent, std::string_view name);

  [[nodiscard]] bool MarksKey() const override { return true; }

  // Design pixels that the title takes at the top.
  static constexpr int kTitleHeight = 15;
};

}  // namespace toolkit
