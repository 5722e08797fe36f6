#include "settings/preferences/page.h"

namespace settings::preferences {

void Page::Say(const Translation& say, std::initializer_list<Wording> wordings) {
  for (const Wording& wording : wordings) {
    if (!wording.text.key.empty()) wording.control.SetCaption(say(wording.text));
    if (!wording.hint.key.empty()) wording.control.SetHint(say(wording.hint));
  }
}

std::string Page::RangeOf(const toolkit::SpinEdit& spin, const Translation& say,
                          const TextEntry& steps_of_one) {
  const std::string lowest = std::to_string(spin.Lowest());
  const std::string highest = std::to_string(spin.Highest());
  if (spin.StepSize() == 1) return say(steps_of_one, {lowest, highest});
  return say(text::SettingsForm::RangeStepHint, {lowest, highest, std::to_string(spin.StepSize())});
}

std::vector<std::string> Texts(const Translation& say, std::initializer_list<TextEntry> entries) {
  std::vector<std::string> texts;
  for (const TextEntry& entry : entries) texts.push_back(say(entry));
  return texts;
}

}  // namespace settings::preferences
