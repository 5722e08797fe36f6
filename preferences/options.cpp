#include "preferences/options.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "toolkit/colour_popup.h"

namespace preferences {
namespace {

template <class Setting, class Value>
void Change(Context& context, const Setting& setting, const Push<Value>& push, Value value) {
  if (push) push(context.meter, value);
  context.Save(setting, value);
}

std::optional<platform::Colour> AskForColour(Context& context, toolkit::ColourPanel& panel,
                                             const language::TextEntry& caption) {
  const language::Translation say = context.language.Chosen();
  const toolkit::ColourPopupTexts texts{say(caption), say(language::text::SettingsForm::ColorMore),
                                        say(language::text::SettingsForm::ColorOk),
                                        say(language::text::SettingsForm::ColorCancel)};
  return toolkit::ChooseColour(panel, texts, panel.Colour());
}

int Nearest(std::int64_t stored) {
  return static_cast<int>(std::clamp<std::int64_t>(stored, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

}  // namespace

Option::Option(toolkit::CheckBox& box, const settings::BooleanSetting& setting, Push<bool> push)
    : connect_([&box, setting, push = std::move(push)](Context& context) {
        box.OnClick = [&, setting, push] { Change(context, setting, push, box.Checked()); };
      }),
      read_([&box, setting](Context& context) { box.SetChecked(context.store.Read(setting)); }) {}

Option::Option(toolkit::ListControl& list, const settings::IntegerSetting& setting,
               Push<std::int64_t> push)
    : connect_([&list, setting, push = std::move(push)](Context& context) {
        list.OnChange = [&, setting, push] {
          Change<settings::IntegerSetting, std::int64_t>(context, setting, push, list.ItemIndex());
        };
      }),
      read_([&list, setting](Context& context) { ShowChoice(list, context.store.Read(setting)); }) {
}

Option::Option(toolkit::RadioGroup& group, const settings::IntegerSetting& setting,
               Push<std::int64_t> push)
    : connect_([&group, setting, push = std::move(push)](Context& context) {
        group.OnClick = [&, setting, push] {
          Change<settings::IntegerSetting, std::int64_t>(context, setting, push, group.ItemIndex());
        };
      }),
      read_([&group, setting](Context& context) {
        ShowChoice(group, context.store.Read(setting));
      }) {}

Option::Option(toolkit::SpinEdit& spin, const settings::IntegerSetting& setting,
               Push<std::int64_t> push)
    : connect_([&spin, setting, push = std::move(push)](Context& context) {
        spin.OnChange = [&, setting, push] { Change(context, setting, push, spin.Value()); };
      }),
      read_([&spin, setting](Context& context) { spin.SetValue(context.store.Read(setting)); }) {}

Option::Option(toolkit::TrackBar& bar, const settings::IntegerSetting& setting,
               Push<std::int64_t> push)
    : connect_([&bar, setting, push = std::move(push)](Context& context) {
        bar.OnChange = [&, setting, push] {
          const std::int64_t value =
              context.IsReading() ? context.store.Read(setting) : bar.Position();
          Change(context, setting, push, value);
        };
      }),
      read_([&bar, setting](Context& context) {
        bar.SetPosition(Nearest(context.store.Read(setting)));
      }) {}

Option::Option(const std::vector<toolkit::RadioButton*>& buttons,
               const settings::IntegerSetting& setting, Push<std::int64_t> push)
    : connect_([buttons, setting, push = std::move(push)](Context& context) {
        std::int64_t value = 0;
        for (toolkit::RadioButton* button : buttons) {
          button->OnClick = [&context, setting, push, value] {
            Change(context, setting, push, value);
          };
          ++value;
        }
      }),
      read_([buttons, setting](Context& context) {
        const std::int64_t stored = context.store.Read(setting);
        if (stored < 0 || stored >= std::ssize(buttons)) return;
        buttons[static_cast<std::size_t>(stored)]->SetChecked(true);
      }) {}

// A panel that the code gives another colour has no event of its own.
Option::Option(toolkit::ColourPanel& panel, const settings::ColourSetting& setting,
               const language::TextEntry& text, const Push<platform::Colour>& push)
    : connect_([&panel, setting, text, push](Context& context) {
        panel.OnClick = [&, setting, text, push] {
          const std::optional<platform::Colour> chosen = AskForColour(context, panel, text);
          if (!chosen) return;
          panel.SetColour(*chosen);
          Change(context, setting, push, *chosen);
        };
      }),
      read_([&panel, setting, push](Context& context) {
        const platform::Colour stored = context.store.Read(setting);
        if (stored == panel.Colour()) return;
        panel.SetColour(stored);
        Change(context, setting, push, stored);
      }) {}

void Options::Connect(std::initializer_list<Option> options) {
  options_.assign(options);
  for (const Option& option : options_) option.connect_(context_);
}

void Options::Read() {
  for (const Option& option : options_) option.read_(context_);
}

}  // namespace preferences
