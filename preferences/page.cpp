#include "preferences/page.h"

namespace preferences {

void Page::Say(const language::Translation& say, std::initializer_list<Wording> wordings) {
  for (const Wording& wording : wordings) {
    if (!wording.text.key.empty()) wording.control.SetCaption(say(wording.text));
    if (!wording.hint.key.empty()) wording.control.SetHint(say(wording.hint));
  }
}

std::string Page::RangeOf(const toolkit::SpinEdit& spin, const language::Translation& say,
                          const language::TextEntry& steps_of_one) {
  const std::string lowest = std::to_string(spin.Lowest());
  const std::string highest = std::to_string(spin.Highest());
  if (spin.StepSize() == 1) return say(steps_of_one, {lowest, highest});
  return say(language::text::SettingsForm::RangeStepHint,
             {lowest, highest, std::to_string(spin.StepSize())});
}

std::vector<std::string> Texts(const language::Translation& say,
                               std::initializer_list<language::TextEntry> entries) {
  std::vector<std::string> texts;
  for (const language::TextEntry& entry : entries) texts.push_back(say(entry));
  return texts;
}

}  // namespace preferences
