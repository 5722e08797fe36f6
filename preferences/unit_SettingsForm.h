// The preferences: a tree of page names, and the pages. Whatever the user changes counts at once;
// there is nothing to confirm and nothing to take back.
#pragma once

#include <array>
#include <functional>

#include "preferences/admin_page.h"
#include "preferences/bandwidth_alert_page.h"
#include "preferences/context.h"
#include "preferences/general_page.h"
#include "preferences/graph_colors_page.h"
#include "preferences/graph_grids_page.h"
#include "preferences/graph_others_page.h"
#include "preferences/interfaces_page.h"
#include "preferences/notification_page.h"
#include "preferences/other_page.h"
#include "preferences/page.h"
#include "preferences/reset_settings_page.h"
#include "preferences/text_colors_page.h"
#include "preferences/text_other_page.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/notebook.h"
#include "toolkit/controls/tree_view.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/placement_saver.h"

namespace preferences {

class T_frmPreferences final : public toolkit::Form {
 public:
  // Made hidden. The application and the meter's parts outlive it.
  T_frmPreferences(toolkit::Application& app, const display::RunningMeter& meter);

  // Shows it with what is stored now, or brings it to the front.
  void Open();

  // Puts every stored value into its control. A control that changes fires its handler, and that is
  // how the running meter takes over what was stored from elsewhere.
  void ReadSettings();

  void Localise() override;

 private:
  void PlaceControls();
  void TreeItemsChange();

  Context context_;

  // In the order of Tab.
  toolkit::TreeView TreeItems{*this, "TreeItems"};
  toolkit::Notebook PrefNotebook{*this, "PrefNotebook"};
  GeneralPage general_{PrefNotebook, context_};
  GraphColorsPage graph_colors_{PrefNotebook, context_};
  GraphGridsPage graph_grids_{PrefNotebook, context_};
  GraphOthersPage graph_others_{PrefNotebook, context_};
  TextColorsPage text_colors_{PrefNotebook, context_};
  TextOtherPage text_other_{PrefNotebook, context_};
  Page speed_up_{PrefNotebook, "SpeedUp", context_};
  AdminPage admin_{PrefNotebook, context_};
  InterfacesPage interfaces_{PrefNotebook, context_};
  BandwidthAlertPage bandwidth_alert_{PrefNotebook, context_};
  NotificationPage notification_{PrefNotebook, context_};
  OtherPage other_{PrefNotebook, context_};
  ResetSettingsPage reset_settings_{PrefNotebook, context_, [this] { ReadSettings(); }};
  toolkit::Button btnClose{*this, "btnClose"};

  const std::array<Page*, 13> pages_ = {
      &general_,      &graph_colors_, &graph_grids_,   &graph_others_, &text_colors_,
      &text_other_,   &speed_up_,     &admin_,         &interfaces_,   &bandwidth_alert_,
      &notification_, &other_,        &reset_settings_};
  toolkit::PlacementSaver placement_;
};

// The call that opens the preferences of a meter: it makes them the first time and keeps them.
[[nodiscard]] std::function<void()> PreferencesOf(toolkit::Application& app,
                                                  const display::RunningMeter& meter);

}  // namespace preferences
