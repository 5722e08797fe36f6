// Pulls a form to the edges of the desktop while the user drags it.
#pragma once

#include "toolkit/forms/form_component.h"

namespace toolkit {

// Nothing sticks: where a window docks depends only on where the pointer has it, so whoever pulls
// on comes free again.
class DockingMagnet final : public FormComponent {
 public:
  using FormComponent::FormComponent;

  bool Active = true;
  // Design pixels by which an edge of the form may be pushed out of the work area before it lets
  // go.
  int Power = 30;
  // Design pixels within the work area from which its edges attract the form's.
  int DesktopPower = 15;

  void FormMoving(platform::Rect& bounds) override;
};

// `bounds` moved to the edges of `work` that attract it: each edge by itself, from `reach` pixels
// inside to `hold` pixels outside. Where two opposite edges attract, the left or upper one wins.
[[nodiscard]] platform::Rect Docked(const platform::Rect& bounds, const platform::Rect& work,
                                    int reach, int hold);

}  // namespace toolkit
