// What is wrong with the places of controls, and buttons that say nothing.
#pragma once

#include <string>
#include <vector>

#include "platform/geometry.h"
#include "toolkit/controls/control.h"

namespace test {

inline bool Overlap(const platform::Rect& a, const platform::Rect& b) {
  return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

// Returns whether a control is placed by its own bounds.
inline bool IsPlaced(const toolkit::Control& control) {
  return control.Alignment() == toolkit::Align::kNone;
}

inline void CheckPlace(toolkit::Control& control, std::vector<std::string>& faults) {
  const bool says = !control.Caption().empty() || control.Role() != toolkit::KeyRole::kPush;
  if (control.Visible() && !says) {
    faults.push_back(control.Name() + " says nothing");
  }
  toolkit::Control& parent = *control.Parent();
  const platform::Rect& place = control.Bounds();
  if (place.Empty()) {
    faults.push_back(control.Name() + " has no size");
    return;
  }
  const platform::Size pixels = parent.ClientPixels();
  const int width = parent.Unscale(pixels.width);
  const int height = parent.Unscale(pixels.height);
  if (place.left < 0 || place.top < 0 || place.Right() > width || place.Bottom() > height) {
    faults.push_back(control.Name() + " leaves " + parent.Name() + ", which is " +
                     std::to_string(width) + " by " + std::to_string(height));
  }
  for (const toolkit::Control* sibling : parent.Children()) {
    if (sibling == &control) break;  // each pair once
    if (!IsPlaced(*sibling) || !sibling->Visible() || !control.Visible()) continue;
    if (Overlap(place, sibling->Bounds())) {
      faults.push_back(control.Name() + " covers " + sibling->Name());
    }
  }
}

inline void CheckPlaces(toolkit::Control& parent, std::vector<std::string>& faults) {
  if (parent.IsComposite()) return;
  for (toolkit::Control* child : parent.Children()) {
    if (IsPlaced(*child)) CheckPlace(*child, faults);
    CheckPlaces(*child, faults);
  }
}

// Returns the faults in the places of all controls on `root`, one text for each: a control that has
// no size, leaves its parent, or covers another visible one, and a button without a caption.
inline std::vector<std::string> LayoutFaults(toolkit::Control& root) {
  std::vector<std::string> faults;
  CheckPlaces(root, faults);
  return faults;
}

}  // namespace test
