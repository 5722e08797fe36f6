#include "toolkit/controls/layout.h"

namespace toolkit {
namespace {

bool Overlap(const platform::Rect& a, const platform::Rect& b) {
  return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

// Returns whether a control is placed by its own bounds.
bool IsPlaced(const Control& control) { return control.Alignment() == Align::kNone; }

void CheckPlace(Control& control, std::vector<std::string>& faults) {
  Control& parent = *control.Parent();
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
  for (const Control* sibling : parent.Children()) {
    if (sibling == &control) break;  // each pair once
    if (!IsPlaced(*sibling) || !sibling->Visible() || !control.Visible()) continue;
    if (Overlap(place, sibling->Bounds())) {
      faults.push_back(control.Name() + " covers " + sibling->Name());
    }
  }
}

void Check(Control& parent, std::vector<std::string>& faults) {
  if (parent.IsComposite()) return;
  for (Control* child : parent.Children()) {
    if (IsPlaced(*child)) CheckPlace(*child, faults);
    Check(*child, faults);
  }
}

}  // namespace

void ApplyLayout(std::initializer_list<LayoutRow> rows) {
  for (const LayoutRow& row : rows) {
    row.control.SetBounds(row.bounds);
    if (!row.caption.empty()) row.control.SetCaption(row.caption);
    if (!row.hint.empty()) row.control.SetHint(row.hint);
  }
}

std::vector<std::string> LayoutFaults(Control& root) {
  std::vector<std::string> faults;
  Check(root, faults);
  return faults;
}

}  // namespace toolkit
