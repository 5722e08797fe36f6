// A field with the label before it.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/controls/label.h"

namespace preferences {

struct LabelBefore {
  LabelBefore(toolkit::Control& parent, std::string_view name)
      : label(parent, name, toolkit::kCaptionText) {}
  toolkit::Label label;
};

// A field together with its label. The label is made first: the marked letter of a label leads to
// the control that was made next.
template <class Field>
class Labelled : public LabelBefore, public Field {
 public:
  Labelled(toolkit::Control& parent, std::string_view label, std::string_view name)
      : LabelBefore(parent, label), Field(parent, name) {}
  // The label has the name of the field with "lbl" before it.
  Labelled(toolkit::Control& parent, std::string_view name)
      : Labelled(parent, "lbl" + std::string(name), name) {}
};

}  // namespace preferences
