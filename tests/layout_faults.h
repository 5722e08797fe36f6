// What is wrong with the places of controls, and buttons that say nothing.
#pragma once

#include <string>
#include <vector>

#include "toolkit/controls/control.h"
#include "toolkit/forms/placement.h"

namespace test {

inline bool Overlap(const platform::Rect& a, const platform::Rect& b) {
  return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

// Returns the faults in the places of all controls on `root`, one text for each: a control that has
// no size, leaves its parent, or covers another visible one, and a button without a caption.
inline std::vector<std::string> LayoutFaults(toolkit::Control& root) {
  std::vector<std::string> faults;
  if (root.IsComposite()) return faults;
  const platform::Size pixels = root.ClientPixels();
  const platform::Rect room{0, 0, root.Unscale(pixels.width), root.Unscale(pixels.height)};
  std::vector<const toolkit::Control*> seen;  // those that are placed by their own bounds
  for (toolkit::Control* child : root.Children()) {
    for (std::string& fault : LayoutFaults(*child)) faults.push_back(std::move(fault));
    if (child->Alignment() != toolkit::Align::kNone) continue;
    const platform::Rect& place = child->Bounds();
    if (place.Empty()) faults.push_back(child->Name() + " has no size");
    if (toolkit::Inside(place, room) != place) {
      faults.push_back(child->Name() + " leaves " + root.Name());
    }
    if (!child->Visible()) continue;
    if (child->Caption().empty() && child->Role() == toolkit::KeyRole::kPush) {
      faults.push_back(child->Name() + " says nothing");
    }
    for (const toolkit::Control* other : seen) {
      if (!Overlap(place, other->Bounds())) continue;
      faults.push_back(child->Name() + " covers " + other->Name());
    }
    seen.push_back(child);
  }
  return faults;
}

}  // namespace test
