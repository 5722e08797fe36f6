// A row of a page: a control, its place, the stored value that it edits, and its texts where they
// are not simply those of its name.
#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "language/language.h"
#include "preferences/context.h"
#include "preferences/places.h"
#include "preferences/sound_file.h"
#include "settings/schema.h"
#include "toolkit/controls/bars.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/lists.h"
#include "toolkit/controls/spin_edit.h"

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

// Returns the text of the preferences under this key, or null when there is none.
[[nodiscard]] const language::TextEntry* FindText(std::string_view key);

// The numbers that can be entered; for a track bar, `step` is the page step. A spin edit states its
// range in its hint, with the text `hint`, if there is one, in place of the usual words.
struct Range {
  std::int64_t lowest;
  std::int64_t highest;
  std::int64_t step = 1;
  const language::TextEntry* hint = nullptr;
};

// The step of a spin edit whose only bounds are those of what can be stored.
struct Steps {
  std::int64_t step;
};

// The rows of a list or the buttons of a group: the texts under `key` with 0, 1, 2 and so on behind
// it, as far as there are such texts.
struct Items {
  std::string_view key;
};

// Texts other than those under the control's name. An empty one leaves the control's text as it is.
struct Says {
  language::TextEntry caption;
  language::TextEntry hint = {};
};

// A radio button that stands for one value.
struct Choice {
  const settings::IntegerSetting& setting;
  std::int64_t value;
};

// For each kind of control: the event that reports a change, the present value, and the call that
// shows a value. The value of a list or group is the number of the row or button; a number that
// does not exist leaves the choice as it is. A spin edit shows a number outside its range as it is,
// a track bar shows the nearer end.
using Event = std::function<void()>;
inline Event& EventOf(toolkit::CheckBox& box) { return box.OnClick; }
inline Event& EventOf(toolkit::ListControl& list) { return list.OnChange; }
inline Event& EventOf(toolkit::RadioGroup& group) { return group.OnClick; }
inline Event& EventOf(toolkit::SpinEdit& spin) { return spin.OnChange; }
inline Event& EventOf(toolkit::TrackBar& bar) { return bar.OnChange; }
inline Event& EventOf(toolkit::Edit& edit) { return edit.OnChange; }
inline Event& EventOf(SoundFile& file) { return file.OnChange; }
inline bool ValueOf(const toolkit::CheckBox& box) { return box.Checked(); }
inline std::int64_t ValueOf(const toolkit::ListControl& list) { return list.ItemIndex(); }
inline std::int64_t ValueOf(const toolkit::RadioGroup& group) { return group.ItemIndex(); }
inline std::int64_t ValueOf(const toolkit::SpinEdit& spin) { return spin.Value(); }
inline std::int64_t ValueOf(const toolkit::TrackBar& bar) { return bar.Position(); }
inline const std::string& ValueOf(const toolkit::Edit& edit) { return edit.Text(); }
inline const std::string& ValueOf(const SoundFile& file) { return file.Path(); }
inline void ShowIn(toolkit::CheckBox& box, bool value) { box.SetChecked(value); }
void ShowIn(toolkit::ListControl& list, std::int64_t value);
void ShowIn(toolkit::RadioGroup& group, std::int64_t value);
inline void ShowIn(toolkit::SpinEdit& spin, std::int64_t value) { spin.SetValue(value); }
void ShowIn(toolkit::TrackBar& bar, std::int64_t value);
inline void ShowIn(toolkit::Edit& edit, const std::string& value) { edit.SetText(value); }
inline void ShowIn(SoundFile& file, const std::string& value) { file.SetPath(value); }

// A row is made where its page is made; the control outlives it. After the place come, in any
// order:
//   a constant of the schema, or a function that returns the setting that counts at the moment
//   Range, Steps, Items, Choice or Says
//   a function that updates the rest of the page; it runs before the value is pushed
class Row {
 public:
  template <class Control, class... More>
  Row(Control& control, const Place& place, const More&... more) {
    if constexpr (std::is_same_v<Control, SoundFile>) {
      control.Place(place.control);
      says.emplace_back([&control](const auto& say) { control.Localise(say); });
    } else {
      control.SetBounds(place.control);
      if (toolkit::Label* label = LabelOf(control)) label->SetBounds(place.label);
    }
    (Take(control, more), ...);
  }

  using Words = std::function<void(const language::Translation& say)>;

  // Each of these is empty when there is nothing to do.
  Event follows;                       // updates the rest of the page
  Event* event = nullptr;              // the control's, which reports a choice
  std::function<void(Context&)> take;  // pushes what was chosen
  std::function<void(Context&)> read;  // shows what is stored
  std::vector<Words> says;             // set the texts other than those under the name

 private:
  template <class Control, class More>
  void Take(Control& control, const More& more) {
    if constexpr (std::is_same_v<More, settings::ColourSetting>) {
      BindColour(control, LabelOf(control), more);
    } else if constexpr (requires { more.name; }) {
      Bind(control, [&more] { return more; });
    } else if constexpr (!std::is_invocable_v<More>) {
      Design(control, more);
    } else if constexpr (std::is_void_v<std::invoke_result_t<More>>) {
      follows = more;
    } else {
      Bind(control, more);  // a call that gives the setting
    }
  }

  template <class Control>
  static toolkit::Label* LabelOf(Control& control) {
    if constexpr (std::derived_from<Control, LabelBefore>) return &control.label;
    return nullptr;
  }

  template <class Control, class Source>
  void Bind(Control& control, const Source& source) {
    event = &EventOf(control);
    take = [&control, source](Context& context) {
      if constexpr (std::derived_from<Control, toolkit::TrackBar>) {
        // What is stored may be beyond the ends of the bar.
        if (context.IsReading()) {
          context.Change(source(), context.store.Read(source()));
          return;
        }
      }
      context.Change(source(), ValueOf(control));
    };
    read = [&control, source](Context& context) { ShowIn(control, context.store.Read(source())); };
  }

  void BindColour(toolkit::ColourPanel& panel, toolkit::Label* label,
                  const settings::ColourSetting& setting);
  void Design(toolkit::RadioButton& button, const Choice& choice);
  void Design(toolkit::SpinEdit& spin, const Range& range);
  void Design(toolkit::SpinEdit& spin, const Steps& steps);
  void Design(toolkit::TrackBar& bar, const Range& range);
  void Design(toolkit::ListControl& list, const Items& items);
  void Design(toolkit::RadioGroup& group, const Items& items);
  void Design(toolkit::Control& control, const Says& texts);
};

}  // namespace preferences
