// Pulls a form to the edges of the desktop while the user drags it.
#pragma once

#include "toolkit/forms/form.h"

namespace toolkit {

// A docked form does not stick: its place depends only on where the pointer has it, so that pulling
// on frees the form again.
class DockingMagnet final : public FormComponent {
 public:
  using FormComponent::FormComponent;

  bool Active = true;
  // Design pixels by which an edge of the form may be pushed out of the work area before the work
  // area's edge lets go of it.
  int Power = 30;
  // Design pixels from an edge of the work area, inside it, within which it attracts the form's
  // edge.
  int DesktopPower = 15;

  void FormMoving(platform::Rect& bounds) override;
};

// Returns `bounds` moved to the edges of `work` that attract it. Each edge attracts by itself, from
// `reach` pixels inside to `hold` pixels outside. When two opposite edges attract, the left or
// upper one wins.
[[nodiscard]] platform::Rect Docked(const platform::Rect& bounds, const platform::Rect& work,
                                    int reach, int hold);

}  // namespace toolkit
