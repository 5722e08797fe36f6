// A page of the preferences.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "language/language.h"
#include "language/texts.h"
#include "preferences/context.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/notebook.h"
#include "toolkit/controls/spin_edit.h"

namespace preferences {

// Design pixels of every page.
inline constexpr int kPageWidth = 424;
inline constexpr int kPageHeight = 400;
inline constexpr int kMargin = 8;
inline constexpr int kWidth = kPageWidth - 2 * kMargin;   // of what is on a page
inline constexpr int kGroupWidth = kWidth - 2 * kMargin;  // of what is in a group
inline constexpr int kGroupTop = toolkit::GroupBox::kTitleHeight + 5;
inline constexpr int kRow = 23;          // from one line of controls to the next
inline constexpr int kFieldRow = 27;     // the same where there are fields
inline constexpr int kBoxHeight = 17;    // check boxes, radio buttons, labels
inline constexpr int kFieldHeight = 21;  // edits and lists
inline constexpr int kButtonHeight = 25;

// A column of labels, each with a field behind it; design pixels.
struct FieldColumn {
  int top;
  int label_width;

  [[nodiscard]] constexpr int FieldLeft() const { return kMargin + label_width + kMargin; }
  // Up to the margin of the page.
  [[nodiscard]] constexpr int FieldWidth() const { return kPageWidth - kMargin - FieldLeft(); }
  // Two pixels lower than the field, so that their texts stand on one line.
  [[nodiscard]] constexpr platform::Rect Label(int row) const {
    return {kMargin, top + row * kFieldRow + 2, label_width, kBoxHeight};
  }
  [[nodiscard]] constexpr platform::Rect Field(int row, int width) const {
    return {FieldLeft(), top + row * kFieldRow, width, kFieldHeight};
  }
};

// A control's text, and its hint where it has one.
struct Wording {
  toolkit::Control& control;
  language::TextEntry text;
  language::TextEntry hint = {};
};

// The texts of several entries, such as the rows of a list.
[[nodiscard]] std::vector<std::string> Texts(const language::Translation& say,
                                             std::initializer_list<language::TextEntry> entries);

class Page : public toolkit::NotebookPage {
 public:
  Page(toolkit::Notebook& notebook, std::string_view name, Context& context)
      : NotebookPage(notebook, name), context_(context) {}

  // Gives every control its text.
  virtual void Localise(const language::Translation& /*say*/) {}

 protected:
  static void Say(const language::Translation& say, std::initializer_list<Wording> wordings);
  // What can be entered, as a hint: the lowest and the highest number, put into `steps_of_one`
  // where the number moves by one, else with its step.
  [[nodiscard]] static std::string RangeOf(
      const toolkit::SpinEdit& spin, const language::Translation& say,
      const language::TextEntry& steps_of_one = language::text::SettingsForm::RangeHint);

  Context& context_;
};

}  // namespace preferences
