// The two submenus that list the network adapters.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "engine/interface_sampler.h"
#include "settings/store.h"
#include "toolkit/menus/popup_menu.h"

namespace display {

class AdapterMenus {
 public:
  // All arguments outlive the menus.
  AdapterMenus(settings::Store& store, toolkit::MenuItem& statistics, toolkit::MenuItem& sources)
      : store_(store), statistics_(statistics), sources_(sources) {}

  // Removes all items of both submenus.
  void Clear();

  // Adds an item for each adapter to both submenus.
  void Add(const std::vector<engine::AdapterItem>& adapters);

  // The descriptions of the adapters, in the order of the menus.
  [[nodiscard]] std::vector<std::string> Descriptions() const;

  // Takes the ticks of "Connection Sources" over from the store.
  void ReadTicks();

  // Runs when the list of adapters was replaced, or when the user ticked or unticked an adapter in
  // the menu.
  std::function<void()> OnChange;

  // Opens the statistics window of the adapter with this description; while it is empty the items
  // of "Connection Statistics" are disabled.
  std::function<void(const std::string& description)> OpenStatistics;

 private:
  void MyPopupHandler(toolkit::MenuItem& item);
  void MyPopupHandler2(const toolkit::MenuItem& item);

  settings::Store& store_;
  toolkit::MenuItem& statistics_;
  toolkit::MenuItem& sources_;
};

}  // namespace display
