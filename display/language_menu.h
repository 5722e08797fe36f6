// The submenu that offers the languages.
#pragma once

#include <functional>

#include "settings/language.h"
#include "toolkit/popup_menu.h"

namespace display {

class LanguageMenu {
 public:
  // Both outlive it. `changed` is called when the user has chosen.
  LanguageMenu(settings::Language& language, toolkit::MenuItem& menu, std::function<void()> changed)
      : language_(language), menu_(menu), changed_(std::move(changed)) {}

  // Offers the languages that there are now, the one in use checked.
  void Refresh();

 private:
  settings::Language& language_;
  toolkit::MenuItem& menu_;
  std::function<void()> changed_;
};

}  // namespace display
