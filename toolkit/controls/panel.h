// An area that holds other controls, and the bevels around it.
#pragma once

#include "platform/canvas.h"
#include "toolkit/controls/control.h"

namespace toolkit {

// kEven is the same on all sides: a bright area has no edge where the light falls on it.
enum class BevelCut { kNone, kLowered, kRaised, kSpace, kEven };

// Draws a frame `width` pixels wide just inside `area` and returns what is left within. kNone draws
// and takes nothing, kSpace takes the width in the colour `space`.
platform::Rect DrawBevel(platform::Canvas& canvas, const platform::Rect& area, BevelCut cut,
                         int width, platform::Colour space);

// Draws the frame that values and colours have, a hair line just inside `area`, and returns what is
// left within.
platform::Rect DrawFrame(platform::Canvas& canvas, const platform::Rect& area);

class Panel : public Control {
 public:
  Panel(Control& parent, std::string_view name) : Control(parent, name) { AttachSurface(name); }

  void SetBevels(BevelCut outer, BevelCut inner);

 protected:
  void Paint(platform::Canvas& canvas) override;
  [[nodiscard]] platform::Rect ChildArea() const override;

 private:
  BevelCut outer_ = BevelCut::kNone;
  BevelCut inner_ = BevelCut::kNone;
};

}  // namespace toolkit
