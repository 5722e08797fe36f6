// Reacts when the bandwidth limit is reached.
#pragma once

#include "alerts/reactions.h"
#include "language/language.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "toolkit/action.h"
#include "toolkit/menus/popup_menu.h"

namespace toolkit {
class Application;
}

namespace alerts {

class BandwidthAlert {
 public:
  // All arguments outlive the alert. `menu` is closed before the window shows.
  BandwidthAlert(toolkit::Application& app, settings::Store& store, quantity::Quantity& quantity,
                 const language::Language& language, Reactions& reactions,
                 toolkit::PopupMenu& menu);

  // The alert's step of a scan. When it shows the window, it returns when the window is closed;
  // scans go on meanwhile. While a menu is open it returns at once, and the window shows when the
  // menu is gone.
  void Check();

  toolkit::Action Action{"BandwidthAlert"};

 private:
  void BandwidthAlertExecute();
  void ShowMessage();
  void ShowWindow();

  toolkit::Application& app_;
  settings::Store& store_;
  quantity::Quantity& quantity_;
  const language::Language& language_;
  Reactions& reactions_;
  toolkit::PopupMenu& menu_;
};

}  // namespace alerts
