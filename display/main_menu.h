// The menu of the meter window and of the tray icon.
#pragma once

#include "language/language.h"
#include "toolkit/menus/popup_menu.h"

namespace display {

// The items stand in the order of the menu, which owns them. The meter window sets what they do.
struct MainMenu {
  explicit MainMenu(toolkit::Application& app);

  // Gives every item its text in the user's language.
  void Localise(const language::Language& language);

  toolkit::PopupMenu popup;

  toolkit::MenuItem* ConnectionInformations1 = nullptr;
  toolkit::MenuItem* conenctionMonitor1 = nullptr;  // one item for each adapter
  toolkit::MenuItem* ConnectionSources1 = nullptr;  // one checked item for each adapter
  toolkit::MenuItem* GraphDisplayOptions1 = nullptr;
  toolkit::MenuItem* mnuAlwaysTopOn = nullptr;
  toolkit::MenuItem* ShowHide1 = nullptr;
  toolkit::MenuItem* mnuGraphMode = nullptr;
  toolkit::MenuItem* mnuTextMode = nullptr;
  toolkit::MenuItem* mnuTextandGraph = nullptr;
  toolkit::MenuItem* Clear1 = nullptr;
  toolkit::MenuItem* Transparent1 = nullptr;
  toolkit::MenuItem* mnuTransparent2k = nullptr;
  toolkit::MenuItem* mnuTransparent = nullptr;
  toolkit::MenuItem* Settings1 = nullptr;
  toolkit::MenuItem* HElp1 = nullptr;
  toolkit::MenuItem* HelpContents1 = nullptr;
  toolkit::MenuItem* AboutBrisantoXP1 = nullptr;
  toolkit::MenuItem* Close1 = nullptr;
};

}  // namespace display
