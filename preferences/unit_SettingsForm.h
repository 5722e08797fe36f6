// The preferences: a tree of page names, and the pages. Whatever the user changes counts at once;
// there is nothing to confirm and nothing to take back.
#pragma once

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
  toolkit::TreeView TreeItems;
  toolkit::Notebook PrefNotebook;
  GeneralPage general_;
  GraphColorsPage graph_colors_;
  GraphGridsPage graph_grids_;
  GraphOthersPage graph_others_;
  TextColorsPage text_colors_;
  TextOtherPage text_other_;
  Page speed_up_;
  AdminPage admin_;
  InterfacesPage interfaces_;
  BandwidthAlertPage bandwidth_alert_;
  NotificationPage notification_;
  OtherPage other_;
  ResetSettingsPage reset_settings_;
  toolkit::Button btnClose;

  toolkit::PlacementSaver placement_;
};

// The call that opens the preferences of a meter: it makes them the first time and keeps them.
[[nodiscard]] std::function<void()> PreferencesOf(toolkit::Application& app,
                                                  const display::RunningMeter& meter);

}  // namespace preferences
