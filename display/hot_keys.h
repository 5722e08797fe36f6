// The meter's hot keys, which work whatever program the user is in.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/hot_keys.h"
#include "toolkit/menus/short_cut.h"

namespace toolkit {
class Application;
}

namespace display {

// What a hot key does. `OnKeyDown` runs inside the application's guard.
struct HotKeyItem {
  toolkit::ShortCut GlobalKey = 0;
  std::function<void()> OnKeyDown;
};

// Keeps the hot keys registered with the system as long as it exists. A combination that another
// program has taken does nothing, and the user is not told.
class HotKeyHolder {
 public:
  HotKeyHolder(toolkit::Application& app, std::vector<HotKeyItem> items);

 private:
  std::vector<std::unique_ptr<platform::HotKey>> registered_;
};

}  // namespace display
