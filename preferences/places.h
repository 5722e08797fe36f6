// The places of the controls on a page, in design pixels.
#pragma once

#include "platform/geometry.h"
#include "toolkit/controls/buttons.h"

namespace preferences {

inline constexpr int kPageWidth = 424;
inline constexpr int kPageHeight = 400;
inline constexpr int kMargin = 8;
inline constexpr int kWidth = kPageWidth - 2 * kMargin;   // of the controls on a page
inline constexpr int kGroupWidth = kWidth - 2 * kMargin;  // of the controls in a group
inline constexpr int kGroupTop = toolkit::GroupBox::kTitleHeight + 5;
inline constexpr int kRow = 23;          // from one line of controls to the next
inline constexpr int kFieldRow = 27;     // the same where there are fields
inline constexpr int kBoxHeight = 17;    // check boxes, radio buttons, labels
inline constexpr int kFieldHeight = 21;  // edits and lists
inline constexpr int kButtonHeight = 25;

// The place of a control, and of its label where it has one.
struct Place {
  constexpr Place(int left, int top, int width, int height) : control{left, top, width, height} {}
  constexpr Place(const platform::Rect& control, const platform::Rect& label)
      : control(control), label(label) {}

  platform::Rect control;
  platform::Rect label;
};

// Returns a whole line of a page or, with kGroupWidth, of a group.
constexpr Place Line(int top, int width = kWidth) { return {kMargin, top, width, kBoxHeight}; }

// Returns the line of a group with this number, counted from 0.
constexpr Place GroupLine(int row) { return Line(kGroupTop + row * kRow, kGroupWidth); }

// Returns the places of a label and of the field behind it. The label is two pixels lower, so that
// the two texts stand on one line.
constexpr Place LabelAndField(int left, int top, int label_width, int field_width) {
  return {{left + label_width + kMargin, top, field_width, kFieldHeight},
          {left, top + 2, label_width, kBoxHeight}};
}

// Returns the places of a field and of its label on a line above it.
constexpr Place Below(int label_top, const platform::Rect& field) {
  return {field, {kMargin, label_top, kWidth, kBoxHeight}};
}

// A column of labels, each with a field behind it.
struct FieldColumn {
  int top;
  int label_width;

  [[nodiscard]] constexpr int FieldLeft() const { return kMargin + label_width + kMargin; }
  // Returns the width from the field's left side to the margin of the page.
  [[nodiscard]] constexpr int FieldWidth() const { return kPageWidth - kMargin - FieldLeft(); }
  [[nodiscard]] constexpr int Top(int row) const { return top + row * kFieldRow; }
  [[nodiscard]] constexpr Place At(int row, int width) const {
    return LabelAndField(kMargin, Top(row), label_width, width);
  }
  [[nodiscard]] constexpr Place At(int row) const { return At(row, FieldWidth()); }
};

}  // namespace preferences
