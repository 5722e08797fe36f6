// An area with bevels that holds other controls.
#pragma once

#include "toolkit/controls/bevel.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class Panel : public Control {
 public:
  Panel(Control& parent, std::string_view name);

  void SetBevels(BevelCut outer, BevelCut inner);

 protected:
  void Paint(platform::Canvas& canvas) override;
  [[nodiscard]] platform::Rect ChildArea() const override;

 private:
  BevelCut outer_ = BevelCut::kNone;
  BevelCut inner_ = BevelCut::kNone;
};

}  // namespace toolkit
