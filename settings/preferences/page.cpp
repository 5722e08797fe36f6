#include "settings/preferences/page.h"

namespace settings::preferences {

void Page::Say(const Translation& say, std::initializer_list<Wording> wordings) {
  for (const Wording& wording : wordings) {
    if (!wording.text.key.empty()) wording.control.SetCaption(say(wording.text));
    if (!wording.hint.key.empty()) wording.control.SetHint(say(wording.hint));
  }
}

}  // namespace settings::preferences
