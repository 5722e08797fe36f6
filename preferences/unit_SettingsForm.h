// The preferences window: a tree of page names, and the pages. Whatever the user changes takes
// effect at once; there is no button to confirm or to cancel.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "preferences/context.h"
#include "preferences/page.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/lists.h"
#include "toolkit/controls/pages.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/placement_saver.h"

namespace preferences {

class T_frmPreferences final : public toolkit::Form {
 public:
  // Makes the window hidden. The application and the meter's parts outlive it.
  T_frmPreferences(toolkit::Application& app, const display::RunningMeter& meter);

  // Shows the window with the values that are stored now, or brings it to the front when it is
  // open: at the page of this name or, with an empty one, where the user was.
  void Open(std::string_view page = {});

  // Puts every stored value into its control. A control that changes fires its handler; in this way
  // the running meter takes over values that were stored by something else.
  void ReadSettings();

  void Localise() override;

 private:
  void PlaceControls();
  void TreeItemsChange();

  Context context_;

  // The members stand in the order of Tab.
  toolkit::TreeView TreeItems{*this, "TreeItems"};
  toolkit::Notebook PrefNotebook{*this, "PrefNotebook"};
  const std::vector<std::unique_ptr<Page>> pages_;
  toolkit::Button btnClose{*this, "btnClose"};

  toolkit::PlacementSaver placement_;
};

// Returns the function that opens the preferences of a meter. It makes the window the first time
// and keeps it.
[[nodiscard]] std::function<void(std::string_view page)> PreferencesOf(
    toolkit::Application& app, const display::RunningMeter& meter);

}  // namespace preferences
