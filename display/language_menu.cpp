#include "display/language_menu.h"

namespace display {

void LanguageMenu::Refresh() {
  menu_.Clear();
  const std::vector<std::string> names = language_.Names();
  const std::size_t in_use = language_.IndexIn(names);
  for (std::size_t i = 0; i < names.size(); ++i) {
    toolkit::MenuItem& item = menu_.Add(names[i]);
    item.Literal = true;
    item.RadioItem = true;
    item.SetChecked(i == in_use);
    item.OnClick = [this, name = names[i]] {
      language_.Choose(name);
      changed_();
    };
  }
}

}  // namespace display
