// What screen readers are told of the controls.
#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

#include "platform/marked_text.h"
#include "toolkit/controls/label.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

// Returns whether a text has a letter or a digit. Signs such as "..." say nothing when they are
// read out.
bool HasWords(std::string_view text) {
  return std::ranges::any_of(text, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || std::isalnum(byte) != 0;
  });
}

// Returns the caption as it is seen.
std::string SeenCaption(const Control& control) {
  return control.MarksKey() ? platform::ReadMarks(control.Caption()).shown : control.Caption();
}

// Returns the label that was made right before a control and leads to it, or null. One without a
// marked letter, such as a unit, may belong to what stands before it.
const Label* LabelBefore(const Control& control) {
  const std::vector<Control*>& siblings = control.Parent()->Children();
  const auto at = std::ranges::find(siblings, &control);
  const auto* label = at != siblings.begin() ? dynamic_cast<const Label*>(*(at - 1)) : nullptr;
  return label != nullptr && label->MarksKey() ? label : nullptr;
}

std::string NameOf(const Control& control) {
  if (HasWords(control.Caption())) return SeenCaption(control);
  if (control.Parent()->IsComposite()) return NameOf(*control.Parent());
  const Label* label = LabelBefore(control);
  return label != nullptr && HasWords(label->Caption()) ? SeenCaption(*label) : control.Hint();
}

}  // namespace

platform::Spoken Control::Describe() const {
  platform::Spoken spoken{.name = NameOf(*this)};
  if (spoken.name != hint_) spoken.description = hint_;
  if (spoken.name.empty() && Role() != KeyRole::kNone) {
    spoken.name = parent_->ParentForm().Caption();
  }
  return spoken;
}

}  // namespace toolkit
