// The table of a page: which control edits which stored value, and what is pushed into the running
// meter.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <vector>

#include "language/texts.h"
#include "preferences/context.h"
#include "settings/schema.h"
#include "toolkit/controls/check_box.h"
#include "toolkit/controls/colour_panel.h"
#include "toolkit/controls/list_control.h"
#include "toolkit/controls/radio_button.h"
#include "toolkit/controls/radio_group.h"
#include "toolkit/controls/spin_edit.h"
#include "toolkit/controls/track_bar.h"

namespace preferences {

// Gives the running meter a value; empty for an option that is read when it is used.
template <class Value>
using Push = std::function<void(const display::RunningMeter& meter, Value value)>;

// Shows a stored choice of a list or radio group; one that does not exist leaves it as it is.
template <class Choices>
void ShowChoice(Choices& choices, std::int64_t stored) {
  if (stored >= 0 && stored < choices.Count()) choices.SetItemIndex(static_cast<int>(stored));
}

// A row of the table. The control and what `push` refers to outlive it.
class Option {
 public:
  Option(toolkit::CheckBox& box, const settings::BooleanSetting& setting, Push<bool> push = {});
  // The stored value is the number of the row or button. One that does not exist leaves the choice
  // as it is.
  Option(toolkit::ListControl& list, const settings::IntegerSetting& setting,
         Push<std::int64_t> push = {});
  Option(toolkit::RadioGroup& group, const settings::IntegerSetting& setting,
         Push<std::int64_t> push = {});
  // A stored value outside the range is shown as it is.
  Option(toolkit::SpinEdit& spin, const settings::IntegerSetting& setting,
         Push<std::int64_t> push = {});
  // A stored value outside the range is shown by the nearest end, but pushed as it is.
  Option(toolkit::TrackBar& bar, const settings::IntegerSetting& setting,
         Push<std::int64_t> push = {});
  // Radio buttons that exclude each other.
  Option(const std::vector<toolkit::RadioButton*>& buttons, const settings::IntegerSetting& setting,
         Push<std::int64_t> push = {});
  // A click asks for another colour; `text` is the caption of the colour popup.
  Option(toolkit::ColourPanel& panel, const settings::ColourSetting& setting,
         const language::TextEntry& text, const Push<platform::Colour>& push = {});

 private:
  friend class Options;

  // Makes the control's handler: it takes the new value, pushes it and then writes it.
  std::function<void(Context& context)> connect_;
  // Shows the stored value, which fires the handler if the control changes.
  std::function<void(Context& context)> read_;
};

// Options that are read together, in their order.
class Options {
 public:
  explicit Options(Context& context) : context_(context) {}
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  // Once, when the controls have the values of their design.
  void Connect(std::initializer_list<Option> options);

  // Shows what is stored.
  void Read();

 private:
  Context& context_;
  std::vector<Option> options_;
};

}  // namespace preferences
