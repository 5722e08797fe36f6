#include "preferences/row.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "toolkit/colour_popup.h"

namespace preferences {
namespace {

namespace text = language::text::SettingsForm;

std::vector<std::string> Texts(const Items& items, const language::Translation& say) {
  std::vector<std::string> texts;
  while (const auto* entry = FindText(std::string(items.key) + std::to_string(texts.size()))) {
    texts.push_back(say(*entry));
  }
  return texts;
}

// Returns the name of the text that every option of that kind has.
std::string NameOf(const settings::ColourSetting& setting, const language::Translation& say) {
  const language::TextEntry* name = FindText(setting.name);
  return name != nullptr ? say(*name) : std::string();
}

template <class Choices>
void ShowChoice(Choices& choices, std::int64_t value) {
  if (value >= 0 && value < choices.Count()) choices.SetItemIndex(static_cast<int>(value));
}

std::optional<platform::Colour> AskForColour(Context& context, toolkit::ColourPanel& panel,
                                             const settings::ColourSetting& setting) {
  const language::Translation say = context.language.Chosen();
  const toolkit::ColourPopupTexts texts{NameOf(setting, say), say(text::ColorMore),
                                        say(text::ColorOk), say(text::ColorCancel)};
  return toolkit::ChooseColour(panel, texts, panel.Colour());
}

}  // namespace

const language::TextEntry* FindText(std::string_view key) {
  return language::FindText("SettingsForm", key);
}

void ShowIn(toolkit::ListControl& list, std::int64_t value) { ShowChoice(list, value); }
void ShowIn(toolkit::RadioGroup& group, std::int64_t value) { ShowChoice(group, value); }
void ShowIn(toolkit::TrackBar& bar, std::int64_t value) {
  bar.SetPosition(static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                            std::numeric_limits<int>::max())));
}

// A panel fires no event when the code gives it another colour.
void Row::BindColour(toolkit::ColourPanel& panel, toolkit::Label* label,
                     const settings::ColourSetting& setting) {
  event = &panel.OnClick;
  take = [&panel, &setting](Context& context) {
    const std::optional<platform::Colour> chosen = AskForColour(context, panel, setting);
    if (!chosen) return;
    panel.SetColour(*chosen);
    context.Change(setting, *chosen);
  };
  read = [&panel, &setting](Context& context) {
    const platform::Colour stored = context.store.Read(setting);
    if (stored == panel.Colour()) return;
    panel.SetColour(stored);
    context.Change(setting, stored);
  };
  says.emplace_back([&panel, label, &setting](const auto& say) {
    panel.SetCaption(NameOf(setting, say));
    panel.SetHint(say(text::ColorPanelHint));
    if (label != nullptr && FindText(label->Name()) == nullptr) label->SetCaption(panel.Caption());
  });
}

void Row::Design(toolkit::RadioButton& button, const Choice& choice) {
  const settings::IntegerSetting& setting = choice.setting;
  const std::int64_t value = choice.value;
  event = &button.OnClick;
  take = [&setting, value](Context& context) { context.Change(setting, value); };
  read = [&button, &setting, value](Context& context) {
    if (context.store.Read(setting) == value) button.SetChecked(true);
  };
}

void Row::Design(toolkit::SpinEdit& spin, const Range& range) {
  spin.SetRange(range.lowest, range.highest, range.step);
  says.emplace_back([&spin, range](const auto& say) {
    const language::TextEntry& usual = range.step == 1 ? text::RangeHint : text::RangeStepHint;
    spin.SetHint(say(
        range.hint != nullptr ? *range.hint : usual,
        {std::to_string(range.lowest), std::to_string(range.highest), std::to_string(range.step)}));
  });
}

void Row::Design(toolkit::SpinEdit& spin, const Steps& steps) {
  spin.SetRange(spin.Lowest(), spin.Highest(), steps.step);
  says.emplace_back([&spin](const auto& say) {
    spin.SetHint(say(text::StepHint, {std::to_string(spin.StepSize())}));
  });
}

void Row::Design(toolkit::TrackBar& bar, const Range& range) {
  bar.SetRange(static_cast<int>(range.lowest), static_cast<int>(range.highest),
               static_cast<int>(range.step));
}

void Row::Design(toolkit::ListControl& list, const Items& items) {
  says.emplace_back([&list, items](const auto& say) { list.SetItems(Texts(items, say)); });
}

void Row::Design(toolkit::RadioGroup& group, const Items& items) {
  says.emplace_back([&group, items](const auto& say) { group.SetItems(Texts(items, say)); });
}

void Row::Design(toolkit::Control& control, const Says& texts) {
  says.emplace_back([&control, texts](const auto& say) {
    if (!texts.caption.key.empty()) control.SetCaption(say(texts.caption));
    if (!texts.hint.key.empty()) control.SetHint(say(texts.hint));
  });
}

}  // namespace preferences
