// The preferences: a tree of page names, and the pages. Whatever the user changes counts at once;
// there is nothing to confirm and nothing to take back.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "preferences/context.h"
#include "preferences/page.h"
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

  // Shows it with what is stored now, or brings it to the front. At the page of this name, or with
  // an empty one where the user was.
  void Open(std::string_view page = {});

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
  const std::vector<std::unique_ptr<Page>> pages_;
  toolkit::Button btnClose{*this, "btnClose"};

  toolkit::PlacementSaver placement_;
};

// The call that opens the preferences of a meter: it makes them the first time and keeps them.
[[nodiscard]] std::function<void(std::string_view page)> PreferencesOf(
    toolkit::Application& app, const display::RunningMeter& meter);

}  // namespace preferences
