#include "display/hot_keys.h"

#include <string>
#include <utility>

#include "toolkit/application.h"

namespace display {
HotKeyHolder::HotKeyHolder(toolkit::Application& app, std::vector<HotKeyItem> items) {
  for (HotKeyItem& item : items) {
    const std::string name = "Tremolux.GlobalKey." + std::to_string(item.GlobalKey);
    auto pressed = [&app, handler = std::move(item.OnKeyDown)] { app.Guard(handler); };
    registered_.push_back(app.Platform().hot_keys.Register(
        name, toolkit::CombinationOf(item.GlobalKey), std::move(pressed)));
  }
}

}  // namespace display
